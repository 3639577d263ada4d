#ifndef VRK_PLUGINS_PRIM_ENVIRONMENT_REGISTRATORFUNCTOR_H
#define VRK_PLUGINS_PRIM_ENVIRONMENT_REGISTRATORFUNCTOR_H

#include "base/graph/InputPort.h"
#include "base/util/Singleton.h"
#include "plugins/prim/environment/RegistratorWords.h"

#include <string>

namespace Prim {

// A hook that registers a value of ValueTypeT under a key in its container, as a functor
// of RegistratorTypeT. KeyBanneredT (known by a number or by a name) gives the key port its
// type and the box its key; the box starts with the words' prefix and ends with
// `valueBanner` of the value port, which says what value was typed in.
template <class KeyBanneredT, class ValueTypeT, class RegistratorTypeT,
          std::string (*valueBanner)(const VRK::InputPort&) = nullptr>
class RegistratorFunctor : public KeyBanneredT {
public:
    std::string getBanner() const override
    {
        std::string banner = words_->bannerPrefix + KeyBanneredT::getBanner();
        if constexpr (valueBanner != nullptr)
            banner += valueBanner(this->requireInputPort(words_->valuePort));
        return banner;
    }

protected:
    // The functor registered as `name`, registering a `thing` through its `valuePort`.
    RegistratorFunctor(const char* name, const char* thing, const char* valuePort)
        : RegistratorFunctor(wordsOf(name, thing, valuePort))
    {
    }

private:
    explicit RegistratorFunctor(const RegistratorWords& words)
        : KeyBanneredT(words.name, words.description, words.keyPort,
                       VRK::Singleton<RegistratorTypeT>::getInstance()),
          words_(&words)
    {
        this->addInputPort(words.valuePort, words.valueDescription, ValueTypeT::getInstance(),
                           false);
        this->addInputPort(words.keyPort, words.keyDescription, KeyBanneredT::getKeyType(), false);
    }

    // Made once for each registrator class, so that every functor of the class shares them.
    static const RegistratorWords& wordsOf(const char* name, const char* thing,
                                           const char* valuePort)
    {
        static const RegistratorWords words(name, thing, valuePort, KeyBanneredT::isNumbered);
        return words;
    }

    const RegistratorWords* words_;
};

} // namespace Prim

#endif
