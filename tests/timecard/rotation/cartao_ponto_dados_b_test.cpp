#include "tests/timecard/rotation/rotation_screen.h"
#include "timecard/card/cartao_ponto_dados.h"
#include "timecard/hours/employee_hours.h"

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using namespace testing;
using namespace std::chrono_literals;

using Rotation = RotationScreen;

const std::string kMostUm =
    "LISTA MÁXIMA de 3 Funcionários pora o Turno UM ! Para SUBSTITUIR remova um ITEM da lista.";
const std::string kMostTres =
    "LISTA MÁXIMA de 3 Funcionários pora o Turno TRES ! Para SUBSTITUIR remova um ITEM da lista.";
const std::string kMostOther =
    "LISTA MÁXIMA de 6 Funcionários por GRUPO! Para SUBSTITUIR remova um ITEM da lista de FOLGA.";
const std::string kMostList = "Lista Máxima de 6 Funcionários";
const std::string kOutside =
    "ERRO!! Não é Possível Gravar o GRUPO! Data do Mês de Início da Folga não confere com o Mês de "
    "Copetência!";
const std::string kMoveStart =
    "Já foi Aplicado PONTO para Esta ESCALA! Para MOVER O DIA DO INICIO DA FOLGA Você deverá "
    "Aplicar Ponto Novamente. Se Deseja MOVER o DIA DO INICIO DA FOLGA Clique em 'OK' Senão não "
    "deseja MOVER, Clique em 'CANCELAR'!";
const std::string kRemoveGroup = "Tem Certeza que Deseja EXCLUIR Todos os Itens deste GRUPO?";
const std::string kRemovePunches =
    "Esta Operação irá Excluir o PONTO dos funcionários desta ESCALA! Para Desistir Clique em "
    "'CANCELAR'!";
const std::string kClosed =
    "Não é Possível Realizar Esta Operação!! Já Existe Folha de Pagamento Fechada  para este "
    "Funcionário!";

TEST_F(Rotation, NeedsACompanyAndAMonth) {
    desk.files.remove("/data/DataIde.ivc");
    EXPECT_FALSE(screen.open());
    desk.session.company.reset();
    EXPECT_FALSE(screen.open());
    EXPECT_THAT(shown(),
                ElementsAre("Informe um Mês de Trabalho!!", "Cadastre Primeiro Uma Empresa!!"));
}

TEST_F(Rotation, RecordsATableOfOneShift) {
    screen.workTable().restore();
    EXPECT_FALSE(screen.workTable().save());
    EXPECT_THAT(shown(),
                ElementsAre("ERRO!! Não é Possível Gravar na Opção de Turno 'TODOS'! Mude para um "
                            "Turno Específico."));
    EXPECT_EQ(screen.workTable().weeklyCaption(), "44,0 HORAS SEMANAIS");
    ASSERT_TRUE(screen.filterBy(ShiftFilter::Tres));
    screen.workTable().typeTime(0, 1, "530");
    EXPECT_TRUE(screen.workTable().changed());
    EXPECT_FALSE(screen.filterBy(ShiftFilter::Um)) << "the typed would be lost";
    desk.person.answers = {Answer::Yes};
    ASSERT_TRUE(screen.workTable().save());
    EXPECT_EQ(loadTable(desk.store(), kCompany, Shift::Tres, Scale::Normal).rows[0][1], "05:30");
    desk.file("01er.rdx") = "";
    screen.workTable().typeTime(0, 1, "5");
    desk.person.answers = {Answer::Yes};
    EXPECT_FALSE(screen.workTable().save()) << "another machine changed it";
    EXPECT_EQ(desk.file("01er.rdx"), "");
}

TEST_F(Rotation, EachLimitHasItsMessage) {
    draw({1, 2, 3, 4, 5, 6}, 1);
    EXPECT_FALSE(screen.add({at(7)}));
    EXPECT_FALSE(screen.add({at(2)}));
    EXPECT_FALSE(screen.newGroup()) << "the list would be lost";
    desk.person.answers = {Answer::Yes};
    ASSERT_TRUE(screen.newGroup());
    std::vector<std::size_t> seven{0, 1, 2, 3, 4, 5, 6};
    EXPECT_FALSE(screen.add(seven));
    EXPECT_THAT(screen.group()->members(), IsEmpty());
    EXPECT_THAT(shown(), ElementsAre(kMostOther, "Já está na Lista", HasSubstr("descart"),
                                     HasSubstr("descart"), kMostList));
    ASSERT_TRUE(screen.filterBy(ShiftFilter::Todos));
    ASSERT_TRUE(screen.filterBy(Scale::TwelveByThirtySix));
    EXPECT_FALSE(screen.add({at(10)})) << "of another shift";
    ASSERT_TRUE(screen.filterBy(ShiftFilter::Tres));
    EXPECT_FALSE(screen.filterBy(ShiftFilter::Unico)) << "12x36 bars it";
    ASSERT_TRUE(screen.newGroup());
    for (const int number : {10, 11, 12})
        ASSERT_TRUE(screen.add({at(number)}));
    EXPECT_FALSE(screen.add({at(13)}));
    EXPECT_FALSE(screen.addReliefWorker(at(13)));
    RotationGroup morning{.shift = Shift::Um, .places = {code(1), code(2), code(3)}};
    EXPECT_EQ(addToList(morning, {testing::employee("004", "D", {"Um", "5x1", ""})}, {})->text,
              kMostUm);
    EXPECT_EQ(addToList(morning, {testing::employee("004", "D", {"Um", "12x36", ""})}, {})->text,
              "Escala do Grupo não Confere com Item Selecionado! Para INCLUIR Altere o Escala do "
              "Funcionário Selecionado.");
    EXPECT_THAT(shown(),
                ElementsAre("Turno do Grupo não Confere com Item Selecionado! Para INCLUIR Altere "
                            "o Turno do Funcionário Selecionado.",
                            "Dado Incorreto!", kMostTres,
                            "Escala do Grupo não Confere com Item Selecionado!"));
}

TEST_F(Rotation, CaptionsSayWhoHasNoGroup) {
    show(ShiftFilter::Unico, Scale::FiveByOne);
    EXPECT_EQ(screen.captionOf(at(1)), "S/GRUPO! CRIAR NOVO GRUPO.");
    EXPECT_FALSE(screen.selectGroupOf(at(1)));
    EXPECT_THAT(shown(), ElementsAre("Este Funcionário NÃO ESTÁ Na Lista em um dos GRUPOS! Para "
                                     "alterar OPÇÃO DE ESCALA adicione-o na lista."));
    draw({1, 2}, 5);
    EXPECT_EQ(screen.captionOf(at(1)), "GRUPO-001");
    EXPECT_EQ(screen.captionOf(at(3)), "S/GRUPO! ADICIONE NO GRUPO");
    for (const int number : {3, 4, 5, 6})
        ASSERT_TRUE(screen.add({at(number)}));
    EXPECT_EQ(screen.captionOf(at(7)), "S/GRUPO! CRIAR NOVO GRUPO.");
    ASSERT_TRUE(save() && screen.selectGroupOf(at(6)));
}

TEST_F(Rotation, WhoLeavesThePlacesOfTheOthersStay) {
    draw({1, 2, 3}, 5);
    screen.draft().removePlace(1);
    EXPECT_EQ(screen.view().rows[1].cells[6].letter, "F") << "the third is off on the 7th as ever";
    ASSERT_TRUE(screen.add({at(4)}));
    EXPECT_EQ(screen.view().rows[1].employee, code(4)) << "takes the vacant place";
    ASSERT_TRUE(screen.draft().move(2, 0));
    EXPECT_EQ(screen.view().rows[0].employee, code(3));
    EXPECT_FALSE(screen.draft().move(0, 3));
    EXPECT_TRUE(screen.groupChanged());
    EXPECT_EQ(desk.files.content.count("/data/01GRUPO-032024.rdx"), 0U) << "nothing recorded yet";
}

TEST_F(Rotation, RecordsOnlyWhatFits) {
    draw({1, 2, 3, 4, 5, 6}, 5, 7, 3);
    EXPECT_FALSE(save()) << "six and one relief worker";
    screen.draft().removePlace(5);
    EXPECT_FALSE(save()) << "relief worker off with another";
    screen.draft().setReliefDayOff(0, 0);
    EXPECT_FALSE(save());
    screen.draft().setFirstDayOff(32);
    EXPECT_FALSE(save());
    screen.draft().setFirstDayOff(5);
    screen.draft().setReliefDayOff(0, 4);
    EXPECT_THAT(screen.draft().daysForRelief(0), ElementsAre(Date{2024y / 3 / 4}));
    const auto told = shown();
    ASSERT_EQ(told.size(), 4U);
    EXPECT_THAT(told[0], HasSubstr("segundo folguista"));
    EXPECT_THAT(told[1], HasSubstr("Dias livres: 04"));
    EXPECT_EQ(told[2], "Informe a DATA da Primeira folga do FOLGUISTA!");
    EXPECT_EQ(told[3], kOutside);
    ASSERT_TRUE(save());
    EXPECT_EQ(recorded(),
              "GRUPO-001 Unico 5x1   05/03/2024 007 04/03/2024                001 002 003 004 005 "
              "   \r\n");
    EXPECT_FALSE(screen.groupChanged());
    EXPECT_THAT(desk.person.shown.back().detail, HasSubstr("domingos seguidos"));
}

TEST_F(Rotation, ANewMonthGoesOnFromTheOneBefore) {
    draw({1, 2, 3}, 5, 7, 8);
    ASSERT_TRUE(save());
    desk.file("01configAf002") = leaveBytes({}, "20/03/2024");
    choose(2024y / 4);
    ASSERT_EQ(screen.continuableFrom(), 2024y / 3);
    desk.person.answers = {Answer::Yes};
    ASSERT_TRUE(screen.continueGroups());
    EXPECT_EQ(desk.file("01GRUPO-042024.rdx"),
              "GRUPO-001 Unico 5x1   04/04/2024 007 01/04/2024                001     003         "
              "   \r\n")
        << "off on 29/03 and again on 04/04; the place of who is inactive is vacant";
    EXPECT_THAT(screen.notes(), ElementsAre(HasSubstr("E2 está inativo")));
    ASSERT_TRUE(screen.selectGroup(1));
    EXPECT_EQ(screen.continuableFrom(), std::nullopt);
    for (const std::string& remark : screen.view().remarks)
        EXPECT_THAT(remark, ::testing::Not(HasSubstr("virada"))) << "nobody's rhythm is broken";
}

struct AppliedRotation : Rotation {
    void SetUp() override {
        Rotation::SetUp();
        draw({1, 2, 3}, 5, 7, 9);
        ASSERT_TRUE(save());
        const RotationRecords rotation(desk.store(), desk.clock);
        CartaoPontoDados cards(desk.at, {rotation, locks});
        ASSERT_TRUE(cards.open() && cards.filterBy(Scale::FiveByOne) && cards.select(0));
        desk.person.answers = {Answer::Yes};
        ASSERT_TRUE(cards.applyPunches());
        ASSERT_TRUE(cards.select(6));
        desk.person.answers = {Answer::Yes};
        ASSERT_TRUE(cards.applyPunches()) << "the relief worker";
        ASSERT_TRUE(cards.select(7));
        desk.person.shown.clear();
        EXPECT_FALSE(cards.applyPunches());
        EXPECT_EQ(shown().back(),
                  "Portanto é Necessário PRIMEIRO adicioná-lo na ESCALA DE REVEZAMENTO!!!");
    }

    [[nodiscard]] std::string dayOf(int number, std::size_t day) {
        const auto lines = splitLines(desk.file("01" + code(number).text() + "-03-2024.bdx"));
        return lines.size() > day ? lines[day] : "";
    }
};

TEST_F(AppliedRotation, CardsFollowThePlan) {
    EXPECT_THAT(dayOf(1, 4), HasSubstr("04/seg/mar09:0012:0013:0017:20"));
    EXPECT_THAT(dayOf(1, 5), HasSubstr("05/ter/mar                              ")) << "off";
    EXPECT_THAT(dayOf(1, 5), HasSubstr("DESCANSO SEMANA"));
    EXPECT_THAT(dayOf(1, 10), HasSubstr("10/dom/mar09:0012:00")) << "a Sunday is worked";
    EXPECT_THAT(dayOf(1, 29), HasSubstr("DESCANSO SEMANA")) << "a holiday changes no rhythm";
    EXPECT_THAT(dayOf(7, 29), HasSubstr("29/sex/mar09:0012:0013:0017:20")) << "in place of E1";
    EXPECT_THAT(dayOf(7, 29), HasSubstr("FERIADO"));
    EXPECT_THAT(dayOf(7, 9), HasSubstr("DESCANSO SEMANA"));
    const auto schedule = loadSchedule(desk.store(), {kCompany, code(7)}).value();
    EXPECT_EQ(schedule.weekday.afternoon.exit, parseTime("17:20")) << "hours are compared with it";
}

TEST_F(Rotation, ANightTeamGoesThroughCardAndHours) {
    show(ShiftFilter::Tres, Scale::Normal);
    show(ShiftFilter::Tres, Scale::TwelveByThirtySix);
    ASSERT_TRUE(screen.newGroup() && screen.add({at(10), at(11)}));
    ASSERT_TRUE(save());
    const RotationRecords rotation(desk.store(), desk.clock);
    CartaoPontoDados cards(desk.at, {rotation, locks});
    ASSERT_TRUE(cards.open() && cards.filterBy(Scale::TwelveByThirtySix) && cards.select(0));
    desk.person.answers = {Answer::Ok, Answer::Ok, Answer::Yes};
    ASSERT_TRUE(cards.applyToAll(false));
    EXPECT_EQ(cards.filledCards(), 2) << "the other two are in no group";
    EXPECT_THAT(desk.person.shown.back().detail, HasSubstr("escala de revezamento sem grupo"));
    const auto hours = loadEmployeeHours(desk.store(), kCompany, people().at(9), screen.settings(),
                                         HoursPeriod::CalendarMonth);
    ASSERT_TRUE(hours.has_value());
    const HourTotals totals = hours->totals();
    // Off on the first, so at work on fifteen even days, of which the 10th and the 24th are
    // Sundays.
    EXPECT_EQ(totals[HourCategory::Standard], 13 * 12h);
    EXPECT_EQ(totals[HourCategory::NormalDay], 13 * 5h) << "19 to 22 and 5 to 7";
    EXPECT_EQ(totals[HourCategory::NormalNight], 13 * 7h);
    EXPECT_EQ(totals[HourCategory::ExtraMaximum], 2 * 5h);
    EXPECT_EQ(totals[HourCategory::NightExtraMaximum], 2 * 7h);
    EXPECT_EQ(totals[HourCategory::Missing], 0h);
}

TEST_F(AppliedRotation, MovingTheStartAppliesAgain) {
    ASSERT_TRUE(screen.selectGroup(1) && screen.applied());
    screen.draft().setFirstDayOff(4);
    const auto untouched = desk.files.content;
    EXPECT_FALSE(screen.saveGroup());
    EXPECT_EQ(desk.files.content, untouched);
    desk.person.answers = {Answer::Ok};
    ASSERT_TRUE(screen.saveGroup());
    EXPECT_THAT(shown(), ElementsAre(kMoveStart, kMoveStart));
    EXPECT_THAT(dayOf(1, 4), HasSubstr("DESCANSO SEMANA"));
    EXPECT_THAT(dayOf(1, 5), HasSubstr("09:00"));
    EXPECT_EQ(dayOf(2, 1), "") << "who had no card has none";
}

TEST_F(AppliedRotation, ATableThatIsNoneIsNotApplied) {
    desk.file("01er.rdx") = "Unico 5x1   09:0025:00\r\n";
    ASSERT_TRUE(screen.selectGroup(1));
    screen.draft().setFirstDayOff(4);
    const auto untouched = desk.files.content;
    desk.person.answers = {Answer::Ok};
    EXPECT_FALSE(screen.saveGroup());
    EXPECT_THAT(desk.person.shown.back().detail, HasSubstr("25:00"));
    EXPECT_EQ(desk.files.content, untouched);
    const RotationRecords rotation(desk.store(), desk.clock);
    CartaoPontoDados cards(desk.at, {rotation, locks});
    ASSERT_TRUE(cards.open() && cards.filterBy(Scale::FiveByOne) && cards.select(1));
    desk.person.answers = {Answer::Yes};
    EXPECT_FALSE(cards.applyPunches());
    EXPECT_THAT(desk.person.shown.back().detail, HasSubstr("25:00"));
}

TEST_F(AppliedRotation, AClosedMonthIsNotTouched) {
    ASSERT_TRUE(screen.selectGroup(1));
    locks.closed = {"001"};
    screen.draft().setFirstDayOff(4);
    const auto untouched = desk.files.content;
    EXPECT_FALSE(screen.saveGroup());
    EXPECT_FALSE(screen.removeGroup());
    EXPECT_FALSE(screen.removeGroups());
    EXPECT_FALSE(screen.removePunches());
    EXPECT_THAT(shown(), ElementsAre(kClosed, kClosed, kClosed, kClosed));
    EXPECT_EQ(desk.files.content, untouched);
    screen.draft().setFirstDayOff(5);
    ASSERT_TRUE(screen.add({at(4)}));
    EXPECT_TRUE(save()) << "nothing changes for who is closed";
}

TEST_F(AppliedRotation, DeletesPunchesAndGroups) {
    ASSERT_TRUE(screen.selectGroup(1));
    EXPECT_FALSE(screen.removeGroup());
    desk.person.answers = {Answer::Yes};
    EXPECT_FALSE(screen.removeGroup()) << "the punches stay";
    EXPECT_THAT(shown(), ElementsAre(kRemoveGroup, kRemoveGroup, kRemovePunches));
    desk.person.answers = {Answer::Ok};
    ASSERT_TRUE(screen.removePunches());
    EXPECT_EQ(desk.files.content.count("/data/01001-03-2024.bdx"), 0U);
    EXPECT_FALSE(screen.removePunches()) << "none are left";
    std::string kept;
    desk.at.keepStateBefore = [&](const std::string& act) { kept = act; };
    CartaoPontoDadosB again{desk.at, {locks, editor, engine}};
    ASSERT_TRUE(again.open());
    desk.person.answers = {Answer::Yes};
    ASSERT_TRUE(again.removeGroups());
    EXPECT_EQ(recorded(), "");
    EXPECT_THAT(kept, HasSubstr("GRUPO-001"));
}

TEST_F(AppliedRotation, AnotherMachineIsNoticed) {
    ASSERT_TRUE(screen.selectGroup(1) && screen.add({at(4)}));
    const std::string mine = recorded();
    std::string theirs = mine;
    theirs.replace(theirs.find("002"), 3, "005");
    desk.file("01GRUPO-032024.rdx") = theirs;
    EXPECT_FALSE(save());
    EXPECT_EQ(recorded(), theirs);
    desk.file("01GRUPO-032024.rdx") =
        mine + "GRUPO-002 Unico 5x1   01/03/2024" + std::string(31, ' ') + "004\r\nnot a group\r\n";
    EXPECT_FALSE(save()) << "004 is in another group by now";
    desk.file("01GRUPO-032024.rdx") = mine + "not a group\r\n";
    ASSERT_TRUE(save());
    EXPECT_THAT(recorded(), HasSubstr("\r\nnot a group\r\n")) << "kept as it stands";
    EXPECT_THAT(screen.notes(), ElementsAre(HasSubstr("não foram entendidas")));
}

TEST_F(AppliedRotation, MembersAreKnownToTheRegister) {
    const RotationRecords rotation(desk.store(), desk.clock);
    EXPECT_TRUE(rotation.isMember({kCompany, code(1)}) && rotation.isMember({kCompany, code(7)}));
    EXPECT_FALSE(rotation.isMember({kCompany, code(8)}));
    desk.clock = FixedClock({Date{2024y / 5 / 1}, {}});
    EXPECT_TRUE(rotation.isMember({kCompany, code(1)})) << "March is still the work month";
    saveSelectedMonth(desk.store(), {2024y / 4, ShiftFilter::Todos});
    EXPECT_FALSE(rotation.isMember({kCompany, code(1)})) << "a group of the past";
    rotation.removeMember({kCompany, code(7)});
    EXPECT_EQ(recorded(), "GRUPO-001 Unico 5x1   05/03/2024" + std::string(31, ' ') +
                              "001 002 003            \r\n");
}

}  // namespace
}  // namespace winvrx
