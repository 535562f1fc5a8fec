#pragma once

#include "foundation/register/company_register.h"
#include "personnel/documents/documentos.h"
#include "personnel/leaves/leave_types.h"
#include "tests/support/employees.h"
#include "tests/support/leave_files.h"
#include "tests/support/recording_word_processor.h"
#include "tests/support/test_workplace.h"

#include <deque>
#include <fstream>
#include <iterator>
#include <string>

namespace winvrx::testing {

/// A company with two employees: 001 with contract, and 002 with nothing in the register.
struct PapersDesk : TestWorkplace {
    [[nodiscard]] static Leave dismissal() {
        Leave leave = testing::leave(kLeaveTypes[7].data(), "15/03/2024", "14/04/2024");
        leave.noticeGiven = "15/03/2024";
        leave.noticeBegins = "16/03/2024";
        leave.noticeEnds = "14/04/2024";
        leave.lastWorked = "14/04/2024";
        leave.paymentDue = "24/04/2024";
        leave.terminationType = kTerminationTypes[0];
        leave.noticeType = kNoticeTypes[0];
        return leave;
    }

    RecordingWordProcessor writer;
    Documentos screen{at,
                      {writer,
                       [] {
                           return std::vector<std::filesystem::path>{"/data/documentos/modelos",
                                                                     WINVRX_DOCUMENT_FOLDER};
                       },
                       "/legal"}};

    PapersDesk() {
        for (const PaperKind& kind : paperKinds())
            shipTemplate(std::string(kind.key) + ".txt");
        Company company = sampleCompany(at.clock.today());
        file(std::string(kCompanyRegisterName)) = encode(company) + "\r\n";
        Employee one = testing::employee("001", "ANA MARIA DE SOUSA");
        one.function = "PADEIRA";
        one.taxId = "529.982.247-25";
        one.workBooklet = "12345/001";
        one.admission = "01/02/2020";
        file("01CartaPonto") = employeeList({one, testing::employee("002", "JOSÉ DA SILVA")});
        file("01contrato001") = "x";
        file("01contrato002") = "x";
        screen.load();
        (void)screen.select(0);
        person.shown.clear();
    }

    void shipTemplate(const std::string& name) {
        std::ifstream source(std::string(WINVRX_DOCUMENT_FOLDER) + "/" + name);
        files.content[std::string(WINVRX_DOCUMENT_FOLDER) + "/" + name] =
            std::string(std::istreambuf_iterator<char>(source), {});
    }
    /// The text of the paper, cells and paragraphs in lines.
    std::string textOf(Paper paper) {
        screen.choose(paper);
        return writer.fileOf(screen.composedPaper());
    }
    bool print(Paper paper, std::deque<Answer> answers = {Answer::Yes}) {
        screen.choose(paper);
        person.answers = std::move(answers);
        return screen.print();
    }
    [[nodiscard]] std::string printed() const {
        return files.content.at(writer.printedFiles.back());
    }
};

}  // namespace winvrx::testing
