#include "personnel/leaves/leave_form.h"

#include "foundation/register/leave_file.h"
#include "foundation/values/text.h"
#include "personnel/leaves/leave_findings.h"
#include "personnel/leaves/leave_types.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace winvrx {
namespace {

using enum LeaveInput;
using Typing = std::vector<std::pair<LeaveInput, const char*>>;

const Date kAdmission = *parseDate("10/01/2022");

LeaveForm typed(const Typing& keys, std::optional<Date> admission = kAdmission) {
    LeaveForm form(admission);
    for (const auto& [input, text] : keys)
        form.type(input, text);
    return form;
}

TEST(LeaveForm, FillsDaysFromDatesAndTheLastDayFromDays) {
    struct Case {
        Typing keys;
        const char* last;
        const char* days;
    };
    for (const Case& c : {
             Case{{{FirstDay, "28/02/2024"}, {Days, "3"}}, "01/03/2024", "3"},
             Case{{{FirstDay, "28/02/2023"}, {Days, "3"}}, "02/03/2023", "3"},
             Case{{{Days, "10"}, {FirstDay, "27/12/2023"}}, "05/01/2024", "10"},
             Case{{{FirstDay, "20/03/2024"}, {LastDay, "18/04/2024"}}, "18/04/2024", "30"},
             Case{{{FirstDay, "20/03/2024"}, {LastDay, "22/03/2024"}, {FirstDay, "25/03/2024"}},
                  "27/03/2024",
                  "3"},
             Case{{{FirstDay, "20/03/2024"}, {Days, "0"}, {Hours, "4"}}, "20/03/2024", "0"},
             Case{{{FirstDay, "20/03/2024"}, {Days, "0"}, {LastDay, "20/03/2024"}},
                  "20/03/2024",
                  "0"},
             Case{{{FirstDay, "31/02/2024"}, {Days, "3"}}, "", "3"},
             Case{{{FirstDay, "20/03/2024"}, {LastDay, "19/03/2024"}}, "19/03/2024", ""},
             Case{{{FirstDay, "20/03/2024"}, {Days, "dez"}}, "", "dez"},
         }) {
        const LeaveForm form = typed(c.keys);
        EXPECT_EQ(form.text(LastDay), c.last) << c.keys[0].second << " " << c.keys[1].second;
        EXPECT_EQ(form.text(Days), c.days) << c.keys[0].second << " " << c.keys[1].second;
    }
    EXPECT_EQ(typed({{Days, "5"}, {Hours, "04"}}).leave().duration, "005 Dias e 4 Horas");
    EXPECT_EQ(typed({{Days, "1200"}}).leave().duration, "1200 Dias e 0 Horas");
}

const Typing kPaidNotice = {{Type, "008 RESCISÃO_CONTRATO_TRABALHO"},
                            {FirstDay, "30/06/2026"},
                            {TerminationType, "01. Dispensa sem Justa Causa"},
                            {NoticeType, "02. Aviso Indenizado"}};

TEST(LeaveForm, WorksOutATerminationFromItsFirstDayAndTypes) {
    const LeaveForm form = typed(kPaidNotice);
    struct Case {
        LeaveInput input;
        const char* text;
        const char* rule;
    };
    for (const Case& c : {
             Case{NoticeType, "02. Aviso Indenizado", "30 + 3 × 4 anos = 42 dias, Lei 12.506/2011"},
             Case{NoticeGiven, "30/06/2026", "Primeiro dia do afastamento"},
             Case{NoticeBegins, "01/07/2026", "Dia seguinte ao da comunicação, que não se conta"},
             Case{NoticeEnds, "11/08/2026",
                  "Comunicação 30/06/2026 + 42 dias, data projetada, CLT art. 487 § 1º"},
             Case{LastDayWorked, "30/06/2026", "Aviso indenizado: o dia da comunicação"},
             Case{PaymentDue, "10/07/2026",
                  "Último dia trabalhado 30/06/2026 + 10 dias, CLT art. 477 § 6º"},
             Case{Homologation, "09:00", "Hora da homologação"},
             Case{LastDay, "11/08/2026", "Fim do aviso"},
             Case{Dismissal, "11/08/2026", "Fim do contrato"},
             Case{Days, "43", ""},
         }) {
        EXPECT_EQ(form.text(c.input), c.text) << static_cast<int>(c.input);
        EXPECT_EQ(form.rule(c.input), c.rule) << static_cast<int>(c.input);
        EXPECT_FALSE(form.isTypedOver(c.input)) << static_cast<int>(c.input);
    }
    EXPECT_EQ(typed(kPaidNotice, std::nullopt).text(NoticeEnds), "");
    LeaveForm other = form;
    other.type(Type, "006 FÉRIAS");
    EXPECT_EQ(other.text(NoticeEnds) + other.text(LastDay) + other.text(Dismissal), "");
    EXPECT_EQ(other.leave().terminationType, "");
}

TEST(LeaveForm, KeepsWhatIsTypedOverAndGoesOnFromIt) {
    LeaveForm form = typed(kPaidNotice);
    form.type(LastDayWorked, "15/07/2026");
    EXPECT_TRUE(form.isTypedOver(LastDayWorked));
    EXPECT_EQ(form.rule(LastDayWorked), "30/06/2026: Aviso indenizado: o dia da comunicação");
    EXPECT_EQ(form.text(PaymentDue), "25/07/2026");
    form.type(NoticeGiven, "01/07/2026");
    EXPECT_EQ(form.text(LastDayWorked), "15/07/2026");
    EXPECT_EQ(form.text(NoticeEnds), "12/08/2026");
    form.type(LastDayWorked, "");
    EXPECT_EQ(form.text(LastDayWorked), "01/07/2026");
    EXPECT_FALSE(form.isTypedOver(LastDayWorked));

    form.type(Homologation, "10:30");
    const LeaveForm again(form.leave(), kAdmission);
    EXPECT_EQ(again.leave(), form.leave());
    EXPECT_FALSE(again.isChanged());
    EXPECT_TRUE(again.isTypedOver(NoticeGiven));
    EXPECT_FALSE(again.isTypedOver(NoticeEnds));
    EXPECT_TRUE(again.isTypedOver(Homologation));
    form.type(TerminationType, "02. Dispensa por Justa Causa Causada pelo Empregado");
    EXPECT_EQ(form.text(NoticeBegins), "");
    EXPECT_EQ(form.text(LastDay), "01/07/2026");
}

TEST(LeaveForm, KeepsTheLineThatItShows) {
    for (const std::string& line : {
             std::string("006 f\xE9rias                    01/03/202405/03/2024"),
             std::string("008 rescis\xE3o_contrato_trabalho"),
             leaveLine(typed(kPaidNotice).leave()).bytes + " more",
             std::string("009 OUTRO"),
         }) {
        const Leave stored = decode<Leave>(line);
        const LeaveForm form(stored, kAdmission);
        EXPECT_FALSE(form.isChanged()) << line;
        const std::string again = leaveLine(form.leave(), line).bytes;
        EXPECT_EQ(again.substr(0, 40), RecordLine(line, 40).bytes().substr(0, 40)) << line;
        EXPECT_TRUE(line.size() <= kLeaveWidth || again == line) << again;
    }
    const std::string longer = leaveLine([] {
                                   LeaveForm form = typed(kPaidNotice);
                                   form.type(Homologation, "14:00");
                                   return form.leave();
                               }())
                                   .bytes;
    EXPECT_EQ(longer.substr(kLeaveWidth), "  14:00");
    EXPECT_EQ(leaveLine(typed(kPaidNotice).leave(), longer).bytes.size(), kLeaveWidth);
}

TEST(LeaveFindings, AreToldBesideTheirField) {
    LeaveFile file;
    file.leaves.push_back(
        leaveLine(typed({{Type, "006 FÉRIAS"}, {FirstDay, "10/03/2024"}, {Days, "10"}}).leave()));
    file.leaves.push_back(lineFrom<Leave>("007 ATESTADO"));
    struct Case {
        Typing keys;
        LeaveInput input;
        const char* finding;
    };
    const char* coincides = "Coincide com 006 FÉRIAS, de 10/03/2024 a 19/03/2024.";
    for (const Case& c : {
             Case{{{FirstDay, "01/03/2024"}, {Days, "9"}}, FirstDay, ""},
             Case{{{FirstDay, "01/03/2024"}, {Days, "10"}}, FirstDay, coincides},
             Case{{{FirstDay, "19/03/2024"}, {Days, "0"}}, FirstDay, coincides},
             Case{{{FirstDay, "20/03/2024"}, {Days, "5"}}, FirstDay, ""},
             Case{{{FirstDay, "09/01/2022"}, {Days, "1"}},
                  FirstDay,
                  "Antes da admissão, 10/01/2022."},
             Case{{{FirstDay, "20/03/2024"}, {LastDay, "19/03/2024"}},
                  LastDay,
                  "O último dia é anterior ao primeiro."},
             Case{{{Days, "dez"}}, Days, "Número de dias de 0 a 9999."},
             Case{{{Hours, "24"}}, Hours, "Número de horas de 0 a 23."},
             Case{{{Hours, "23"}}, Hours, ""},
         })
        EXPECT_EQ(findingFor(c.input, typed(c.keys), file, std::nullopt), c.finding)
            << c.keys[0].second << " " << c.finding;
    const LeaveForm shown(file.leaves[0].record, kAdmission);
    EXPECT_EQ(findingFor(FirstDay, shown, file, 0), "");
    LeaveForm before = typed(kPaidNotice);
    before.type(NoticeGiven, "09/01/2022");
    EXPECT_EQ(findingFor(NoticeType, before, file, {}), "O aviso é anterior à admissão.");
    EXPECT_NE(findingFor(NoticeType, typed(kPaidNotice, std::nullopt), file, {}), "");
}

TEST(LeaveTypes, ArePickedByTheirNumber) {
    EXPECT_EQ(leaveTypeOf("007 Atestado"), "007 ATESTADO_DECALRAÇÃO");
    EXPECT_EQ(leaveTypeOf("009 OUTRO"), "");
    EXPECT_EQ(leaveTypeOf("00"), "");
    EXPECT_EQ(terminationTypeOf("03. PEDIDO"), TerminationType::Resignation);
    EXPECT_EQ(terminationTypeOf("06."), std::nullopt);
    EXPECT_EQ(noticeTypeOf(kNoticeTypes[1]), NoticeType::Paid);
    for (const auto text : kLeaveTypes)
        EXPECT_LE(characterCount(text), 30U) << text;
    EXPECT_EQ(characterCount(kLeaveTypes[7]), 30U);
}

}  // namespace
}  // namespace winvrx
