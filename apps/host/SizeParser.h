#ifndef VRK_APPS_HOST_SIZEPARSER_H
#define VRK_APPS_HOST_SIZEPARSER_H

#include <cstdint>
#include <string>

// Sizes of memory as people write them, for every program that hosts scripts: a whole
// number of bytes, optionally followed (spaces between allowed) by a unit of any case,
// b, k, kb, ki, kib and the same with m, g, t, p and e, each unit 1024 times the one
// before. A size that is anything else, or that 64 bits do not hold, is refused with
// std::invalid_argument and the same message wherever it is given.
class SizeParser {
public:
    static std::uint64_t parse(const std::string& text);
};

#endif
