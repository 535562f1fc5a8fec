#include "foundation/copies/copy_contents.h"

#include "foundation/copies/archiver.h"
#include "foundation/copies/copied_files.h"
#include "foundation/copies/copy_name.h"

#include <algorithm>
#include <charconv>
#include <vector>

namespace winvrx {

namespace {

constexpr std::string_view kTitle = "Cópia de segurança 1";
constexpr std::string_view kBefore = "Antes de: ";
constexpr std::string_view kOther = "Cópia: ";
constexpr std::string_view kFile = "Arquivo: ";
constexpr std::string_view kLineEnd = "\r\n";

/// Goes through the text from line to line.
class ContentsReader {
  public:
    explicit ContentsReader(std::string_view text) : rest_(text) {
        requireThat(take(kTitle));
        requireThat(take(kLineEnd));
    }

    [[nodiscard]] bool atEnd() const { return rest_.empty(); }

    /// True when the line begins so; what follows on it is read next.
    [[nodiscard]] bool take(std::string_view start) {
        if (!rest_.starts_with(start)) return false;
        rest_.remove_prefix(start.size());
        return true;
    }

    template <typename Number>
    [[nodiscard]] Number number() {
        Number number{};
        const auto [end, error] =
            std::from_chars(rest_.data(), rest_.data() + rest_.size(), number);
        requireThat(error == std::errc());
        rest_.remove_prefix(static_cast<std::size_t>(end - rest_.data()));
        requireThat(take(" "));
        return number;
    }

    [[nodiscard]] std::string toLineEnd() {
        const std::size_t end = rest_.find(kLineEnd);
        requireThat(end != std::string_view::npos);
        const std::string text(rest_.substr(0, end));
        rest_.remove_prefix(end + kLineEnd.size());
        return text;
    }

    static void requireThat(bool sound) {
        if (!sound) throw DamagedArchive("its contents are not understood");
    }

  private:
    std::string_view rest_;
};

/// The other archives in the order of the text.
using Others = std::vector<std::pair<std::string, std::uint64_t>>;

Others readOthers(ContentsReader& in) {
    Others others;
    while (in.take(kOther)) {
        const auto size = in.number<std::uint64_t>();
        others.emplace_back(in.toLineEnd(), size);
        ContentsReader::requireThat(CopyName::parse(others.back().first).has_value());
    }
    return others;
}

void readFile(ContentsReader& in, const Others& others, CopyContents& contents) {
    CopyContents::File file;
    const auto place = in.number<std::size_t>();
    ContentsReader::requireThat(place <= others.size());
    if (place > 0) file.archive = others[place - 1].first;
    file.size = in.number<std::uint64_t>();
    file.written = std::chrono::nanoseconds(in.number<std::int64_t>());
    std::string name = in.toLineEnd();
    ContentsReader::requireThat(isPlainFileName(name) &&
                                contents.files.emplace(std::move(name), std::move(file)).second);
}

std::string oneLine(std::string text) {
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
    return text;
}

}  // namespace

std::string encode(const CopyContents& contents) {
    std::string text(kTitle);
    text.append(kLineEnd);
    if (!contents.before.empty())
        text.append(kBefore).append(oneLine(contents.before)).append(kLineEnd);
    std::map<std::string, std::string> places{{"", "0"}};
    for (const auto& [name, size] : contents.others) {
        text.append(kOther).append(std::to_string(size)).append(" " + name).append(kLineEnd);
        places.emplace(name, std::to_string(places.size()));
    }
    for (const auto& [name, file] : contents.files)
        text.append(kFile)
            .append(places.at(file.archive))
            .append(" " + std::to_string(file.size))
            .append(" " + std::to_string(file.written.count()))
            .append(" " + name)
            .append(kLineEnd);
    return text;
}

CopyContents decodeContents(std::string_view text) {
    ContentsReader in(text);
    CopyContents contents;
    if (in.take(kBefore)) contents.before = in.toLineEnd();
    const Others others = readOthers(in);
    contents.others.insert(others.begin(), others.end());
    while (!in.atEnd()) {
        ContentsReader::requireThat(in.take(kFile));
        readFile(in, others, contents);
    }
    return contents;
}

CopyContents::Archives decodeOthers(std::string_view text) {
    ContentsReader in(text);
    if (in.take(kBefore)) (void)in.toLineEnd();
    const Others others = readOthers(in);
    return {others.begin(), others.end()};
}

}  // namespace winvrx
