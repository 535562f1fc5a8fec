#include "output/mirrors/mirror_period.h"

#include "tests/support/memory_files.h"
#include "timecard/month/overtime_record.h"

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;

const CompanyCode kCompany = *CompanyCode::parse("01");

/// Ana, 08:00 to 12:00 and 13:00 to 17:00, in February and March of 2024.
struct MirrorPeriodTest : ::testing::Test {
    testing::MemoryFiles files;
    DataFolder folder{'C', "/data"};
    Store store{files, folder};
    Employee ana;

    void SetUp() override {
        ana.code = "001";
        ana.admission = "01/02/2020";
        file("01PadrHor001.pdx") = "08:0012:0013:0017:00";
        file("01001-02-2024.bdx") =
            "  \r\n28/qua/fev08:0012:0013:0020:00\r\n29/qui/fev07:5812:0013:0017:02          "
            "visto\r\n";
        file("01001-03-2024.bdx") =
            "  \r\n01/sex/mar08:0012:0013:00\r\n"
            "04/seg/mar                                   Falta Injustifi\r\n"
            "05/ter/mar08:0012:0013:0018:00\r\n";
    }

    std::string& file(const std::string& name) { return files.content["/data/" + name]; }
    void save(const MonthSettings& settings) { saveMonthSettings(store, settings); }

    [[nodiscard]] MirrorSheet sheet(const char* first, const char* last) const {
        return MirrorPeriod(store, kCompany, {*parseDate(first), *parseDate(last)}).of(ana);
    }
};

TEST_F(MirrorPeriodTest, ARangeJoinsTheRecordsAndSettingsOfItsMonths) {
    MonthSettings february;
    february.month = 2024y / 2;
    february.overtime.differentiatedPercent = true;
    february.setHoliday(*parseDate("29/02/2024"), true);
    save(february);
    saveOvertime(store, {kCompany, *ana.employeeCode()}, {2024y / 3, {60, 60, 110, 110}});
    const MirrorSheet made = sheet("28/02/2024", "05/03/2024");
    ASSERT_EQ(made.days.size(), 7U);
    EXPECT_TRUE(made.recorded);
    EXPECT_EQ(made.overtime.minimumPercent, 60);
    EXPECT_EQ(made.days[0].hours[HourCategory::ExtraMaximum], 1h);
    EXPECT_EQ(made.days[1].contracted, DaySchedule());
    EXPECT_EQ(made.days[2].contracted.morning.entry, TimeOfDay{8h});
    EXPECT_EQ(made.days[3].line.label, "02/sáb/mar");
    EXPECT_EQ(made.days[4].situation, "DESCANSO SEMANAL");
    EXPECT_EQ(made.days[5].situation, "Falta Injustificada");
    EXPECT_EQ(made.days[6].hours[HourCategory::ExtraMinimum], 1h);
    EXPECT_EQ(made.totals[HourCategory::Missing], 4h + 8h);
    HourTotals sum;
    for (const MirrorDay& day : made.days)
        sum += day.hours;
    EXPECT_EQ(sum, made.totals);
}

TEST_F(MirrorPeriodTest, NotesSayWhoWasAwayAndWhatWasToleratedDoubtfulAndTyped) {
    file("01configAf001") =
        "006 F\xC9RIAS                    01/03/2024  02/03/2024\r\n"
        "006 F\xC9RIAS                    02/03/2024  03/03/2024\r\n**** \r\n";
    EXPECT_THAT(
        mirrorNotes(sheet("28/02/2024", "01/03/2024")),
        ElementsAre("Afastamento: FÉRIAS, 01/03/2024 a 02/03/2024", "Corrigido à mão: 28/02, 01/03",
                    "29/qui/fev: variação de 4 min tolerada", "29/qui/fev: observação \"visto\"",
                    "01/sex/mar: horas em dia de afastamento",
                    "01/sex/mar: Tarde: falta a saída; o par não conta."));
}

/// As filled or as somebody typed it, by the schedule and what the calendar makes of the day.
TEST_F(MirrorPeriodTest, ADayIsByHandWhereFillingWouldNotHaveGivenItsTimes) {
    struct Case {
        const char* what;
        const char* day;
        const char* line;
        bool byHand;
    };
    file("01PadrHor001.pdx") = "08:0012:0013:0017:000008:0012:00";
    for (const char* scale : {"Norma", "12x36"})
        for (const Case& one :
             {Case{"as scheduled", "05", "05/ter/mar08:0012:0013:0017:00", false},
              Case{"minutes varied", "05", "05/ter/mar08:0311:5813:0217:00", false},
              Case{"an hour more", "05", "05/ter/mar08:0012:0013:0018:00", true},
              Case{"an extra pair", "05", "05/ter/mar08:0012:0013:0017:0018:0019:00", true},
              Case{"no times", "05", "05/ter/mar                                   Falta", false},
              Case{"a Saturday of extra time", "02",
                   "02/s\xE1"
                   "b/mar08:0012:00",
                   false},
              Case{"an afternoon on it", "02",
                   "02/s\xE1"
                   "b/mar08:0012:0013:0014:00",
                   true},
              Case{"a Sunday", "03", "03/dom/mar08:0012:0013:0017:00", scale[0] == 'N'}}) {
            ana.scale = scale;
            file("01001-03-2024.bdx") = std::string("  \r\n") + one.line + "\r\n";
            const std::string date = std::string(one.day) + "/03/2024";
            EXPECT_EQ(!mirrorNotes(sheet(date.c_str(), date.c_str())).empty() &&
                          mirrorNotes(sheet(date.c_str(), date.c_str()))[0].starts_with("Corr"),
                      one.byHand)
                << scale << ": " << one.what;
        }
}

TEST_F(MirrorPeriodTest, NothingIsCountedWithoutARecordOrOutsideTheContract) {
    const MirrorSheet january = sheet("01/01/2024", "31/01/2024");
    EXPECT_FALSE(january.recorded);
    EXPECT_EQ(january.days.size(), 31U);
    EXPECT_EQ(january.totals, HourTotals());
    EXPECT_EQ(sheet("31/01/2024", "29/02/2024").days.front().hours, HourTotals());
    ana.admission = "05/03/2024";
    const MirrorSheet march = sheet("01/03/2024", "05/03/2024");
    EXPECT_EQ(march.days.front().standing, Standing::BeforeAdmission);
    EXPECT_FALSE(march.days.front().line.hasTimes());
    EXPECT_EQ(march.totals[HourCategory::Missing], 0h);
}

TEST_F(MirrorPeriodTest, AClosingPeriodComesFromItsOwnRecord) {
    MonthSettings march;
    march.month = 2024y / 3;
    march.closingDay = 21;
    march.fixedMonth = false;
    save(march);
    file("01001-03-2024.prd") = "  \r\n28/qua/fev08:0012:0013:0019:00\r\n";
    EXPECT_EQ(sheet("21/02/2024", "20/03/2024").totals[HourCategory::ExtraMinimum], 2h + 1h);
    EXPECT_EQ(sheet("22/02/2024", "20/03/2024").totals[HourCategory::ExtraMinimum], 3h + 1h);
}

}  // namespace
}  // namespace winvrx
