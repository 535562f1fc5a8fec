#include "foundation/register/leave_record.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

/// The line as it stands on disk: what lies between the columns is blank.
const std::string kTermination =
    "008 RESCIS\xC3O_CONTRATO_TRABALHO01/03/2024  31/03/2024  030 Dias e 0 Horas  "
    "29/02/2024  30/03/2024  03. Pedido de Demiss\xE3o" +
    std::string(33, ' ') + "  01. Aviso Trabalhado  01/03/2024  31/03/2024  08/04/2024";

TEST(LeaveRecord, ReadsAndWritesEveryColumn) {
    const Leave leave{"008 RESCISÃO_CONTRATO_TRABALHO",
                      "01/03/2024",
                      "31/03/2024",
                      "030 Dias e 0 Horas",
                      "29/02/2024",
                      "30/03/2024",
                      "03. Pedido de Demissão",
                      "01. Aviso Trabalhado",
                      "01/03/2024",
                      "31/03/2024",
                      "08/04/2024",
                      ""};
    EXPECT_EQ(decodeLeave(kTermination), leave);
    EXPECT_EQ(encode(leave), kTermination);
    const std::string longer = kTermination + "  10:30 more";
    EXPECT_EQ(decodeLeave(longer)->homologation, "10:30");
    EXPECT_EQ(encode(*decodeLeave(longer), longer), longer);
    for (const char* none : {"", "**** ", "nota", "08 X", "0081"})
        EXPECT_EQ(decodeLeave(none).has_value(), std::string_view(none) == "0081") << none;
}

TEST(LeaveStatus, ADateBehindTheMarkMakesInactive) {
    struct Case {
        const char* file;
        const char* since;
    };
    for (const Case& c : {Case{"", ""},
                          {"**** \r\n", ""},
                          {"**** 10/02/2024\r\n", "10/02/2024"},
                          {"****\r\n", ""},
                          {"**** 31/02/2024\r\n", ""},
                          {"006 F\xC9RIAS\r\n**** 10/02/2024", "10/02/2024"},
                          {"008 RESCIS\xC3O 10/02/2024\r\n**** \r\n", ""},
                          {"*** 10/02/2024\r\n", ""}}) {
        const auto since = inactiveSince(c.file);
        EXPECT_EQ(since ? dateText(*since) : "", c.since) << c.file;
    }
}

}  // namespace
}  // namespace winvrx
