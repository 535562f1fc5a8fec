#include "output/stocks/printer_memory.h"

#include "foundation/files/record_file.h"
#include "foundation/files/record_names.h"
#include "foundation/values/text.h"

#include <vector>

namespace winvrx {

namespace {

constexpr std::string_view kFaceUp = "Cima";
constexpr std::string_view kFaceDown = "Baixo";
constexpr std::string_view kCentral = "Central";
constexpr std::string_view kLateral = "Lateral";
constexpr std::string_view kWithHeader = "1";
constexpr std::string_view kWithoutHeader = "0";

constexpr std::size_t kTrayLine = 0;
constexpr std::size_t kFirstTrayName = 1;
constexpr std::size_t kHeaderLine = 4;
constexpr std::size_t kFeedLines = 5;

std::string valueAt(const std::vector<std::string>& lines, std::size_t at) {
    return at < lines.size() ? decodeWindows1252(trimmed(lines[at])) : std::string();
}

/// Replaces a line whose meaning changed.
template <typename Value>
void put(std::string& line, const Value& before, const Value& now, std::string_view text) {
    if (!(before == now)) line = encodeWindows1252(text);
}

PrinterMemory decode(const std::vector<std::string>& kind, const std::vector<std::string>& feed) {
    PrinterMemory memory;
    if (valueAt(kind, 0) == kFaceUp) memory.exit = SheetExit::FaceUp;
    if (valueAt(feed, kTrayLine) == kLateral) memory.tray = TrayPosition::Lateral;
    for (std::size_t i = 0; i < memory.trays.size(); ++i)
        memory.trays[i] = firstCharacters(valueAt(feed, kFirstTrayName + i), kTrayWidth);
    memory.printHeader = valueAt(feed, kHeaderLine) != kWithoutHeader;
    return memory;
}

}  // namespace

PrinterMemory loadPrinterMemory(const Store& store, const CompanyCode& company) {
    return decode(RecordFile(store, company, kPrinterKindName).lines(),
                  RecordFile(store, company, kFeedName).lines());
}

void savePrinterMemory(const Store& store, const CompanyCode& company,
                       const PrinterMemory& memory) {
    const RecordFile kindFile(store, company, kPrinterKindName);
    const RecordFile feedFile(store, company, kFeedName);
    std::vector<std::string> kind = kindFile.lines();
    std::vector<std::string> feed = feedFile.lines();
    const PrinterMemory before = decode(kind, feed);
    if (kind.empty()) kind.emplace_back(kFaceDown);
    if (feed.empty()) feed = {std::string(kCentral), "", "", "", std::string(kWithHeader)};
    if (feed.size() < kFeedLines) feed.resize(kFeedLines);
    put(kind[0], before.exit, memory.exit, memory.exit == SheetExit::FaceUp ? kFaceUp : kFaceDown);
    put(feed[kTrayLine], before.tray, memory.tray,
        memory.tray == TrayPosition::Lateral ? kLateral : kCentral);
    for (std::size_t i = 0; i < memory.trays.size(); ++i)
        put(feed[kFirstTrayName + i], before.trays[i], memory.trays[i], memory.trays[i]);
    put(feed[kHeaderLine], before.printHeader, memory.printHeader,
        memory.printHeader ? kWithHeader : kWithoutHeader);
    store.files.replaceAll(
        {{kindFile.path(), joinedLines(kind)}, {feedFile.path(), joinedLines(feed)}});
}

}  // namespace winvrx
