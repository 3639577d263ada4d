#ifndef VRK_BASE_TASK_ARGUMENTSPLITTER_H
#define VRK_BASE_TASK_ARGUMENTSPLITTER_H

#include <string>
#include <vector>

namespace VRK {

// Splits a parameter string into arguments the way a POSIX shell splits words: blanks
// separate, single quotes keep everything, double quotes keep everything but a
// backslash before \ " $ or `, a backslash outside quotes keeps the next character.
// Nothing is expanded. An unterminated quote is a RuntimeException.
class ArgumentSplitter {
public:
    static std::vector<std::string> split(const std::string& parameters);
};

} // namespace VRK

#endif
