#include "foundation/desk/merge_words.h"

namespace winvrx {

UnknownWord::UnknownWord(std::string_view word)
    : Fault("merge word: " + std::string(word),
            "A palavra \"" + std::string(word) + "\" não é conhecida nesta página.") {}

void MergeWords::put(std::string_view name, std::string value) {
    values_.insert_or_assign(std::string(name), std::move(value));
}

const std::string& MergeWords::at(std::string_view name) const {
    const auto found = values_.find(name);
    if (found == values_.end()) throw UnknownWord(name);
    return found->second;
}

std::string MergeWords::filled(std::string_view text) const {
    std::string result;
    while (true) {
        const std::size_t brace = text.find('{');
        result += text.substr(0, brace);
        if (brace == std::string_view::npos) return result;
        text.remove_prefix(brace);
        const std::size_t end = text.find('}');
        if (end == std::string_view::npos) throw UnknownWord(text);
        result += at(text.substr(1, end - 1));
        text.remove_prefix(end + 1);
    }
}

}  // namespace winvrx
