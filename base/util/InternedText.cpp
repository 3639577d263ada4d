#include "base/util/InternedText.h"

#include <memory>
#include <mutex>
#include <unordered_map>

namespace VRK {

const std::string* InternedText::of(std::string_view text)
{
    static std::mutex mutex;
    static auto* texts = new std::unordered_map<std::string_view, std::unique_ptr<std::string>>;
    std::lock_guard<std::mutex> lock(mutex);
    auto found = texts->find(text);
    if (found != texts->end())
        return found->second.get();
    auto kept = std::make_unique<std::string>(text);
    const std::string* result = kept.get();
    texts->emplace(*result, std::move(kept));
    return result;
}

} // namespace VRK
