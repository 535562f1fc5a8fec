#include "tests/support/fenced_files.h"
#include "tests/support/test_punch_desk.h"
#include "tests/support/test_workplace.h"
#include "timecard/card/cartao_ponto_dados.h"
#include "timecard/month/selected_month.h"

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using testing::FencedFiles;
using ::testing::IsEmpty;
using testing::TestPunchDesk;
using testing::TestWorkplace;

TEST(HostileNames, AStoredMonthOrCodeNamesNoFileOutside) {
    TestWorkplace desk;
    const TestPunchDesk asked;
    FencedFiles fenced(desk.files, "/data");
    const Workplace at{fenced, desk.person, desk.clock, desk.log, desk.session, desk.lock};
    desk.file("01CartaPonto") = "../ SAI\r\na/b SAI\r\n001 ANA\r\n";
    for (const char* month :
         {"../2024", "03-20/4", "..", "/etc/pa", "03-2024/../../x", "+3-2024"}) {
        desk.file("DataIde.ivc") = std::string(month) + "\r\n../../Todos\r\n";
        CartaoPontoDados screen(at, asked.desk);
        EXPECT_FALSE(screen.open()) << month;
    }
    desk.file("DataIde.ivc") = "03-2024\r\n../../Todos\r\n";
    CartaoPontoDados screen(at, asked.desk);
    desk.file("01PadrHor001.pdx") = "08:0012:00";
    ASSERT_TRUE(screen.open());
    ASSERT_EQ(screen.list().employees().size(), 1U);
    ASSERT_TRUE(screen.select(0));
    desk.person.answers = {Answer::Yes};
    EXPECT_TRUE(screen.applyPunches());
    EXPECT_THAT(fenced.trespasses(), IsEmpty());
}

}  // namespace
}  // namespace winvrx
