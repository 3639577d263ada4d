#ifndef VRK_BASE_ERROR_EXCEPTION_H
#define VRK_BASE_ERROR_EXCEPTION_H

#include "base/util/ScriptPosition.h"

#include <exception>
#include <string>

namespace VRK {

// Root of every error a user can cause. `getName` names the class in log lines.
class Exception : public std::exception {
public:
    explicit Exception(const std::string& message);
    Exception(const Exception&) = default;
    ~Exception() override;

    const char* what() const noexcept override;
    const std::string& getMessage() const { return message_; }
    virtual const char* getName() const;

    // Where in a script the error lies, when it is known (a bad binding, a cycle).
    void setScriptPosition(const ScriptPosition& position) { position_ = position; }
    bool hasScriptPosition() const { return position_.isKnown(); }
    const ScriptPosition& getScriptPosition() const { return position_; }

private:
    std::string message_;
    ScriptPosition position_;
};

} // namespace VRK

// Declares an exception class of the family: a message, a base and its own name.
#define VRK_DECLARE_EXCEPTION(Class, Base)                                                \
    class Class : public Base {                                                           \
    public:                                                                               \
        explicit Class(const std::string& message) : Base(message) {}                     \
        const char* getName() const override { return #Class; }                           \
    };

#endif
