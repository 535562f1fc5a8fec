#include "personnel/invoice_letter/correction_letter.h"

#include "foundation/values/faults.h"
#include "fuzz/invariant.h"
#include "personnel/invoice_letter/desktop/qt_xml_reader.h"

using namespace winvrx;
using fuzz::require;

void fuzz::tryBytes(std::string_view bytes) {
    try {
        const auto letter = readCorrectionLetter(QtXmlReader(), std::string(bytes));
        require(letter.accessKey.size() == 44, "a key has its digits");
        const ReportRows rows = letterRows(letter);
        require(!rows.empty() && rows.size() <= 16, "the lines fit the page");
        for (const ReportRow& row : rows)
            require(row.size() == letterColumns().size(), "a row has its columns");
    } catch (const Fault&) {
        // What is no letter is refused.
    }
}
