#include "personnel/leaves/afastamento.h"

#include "personnel/leaves/leave_types.h"
#include "tests/support/employee_desk.h"
#include "timecard/punches/punch_record.h"

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using enum LeaveInput;
using namespace std::chrono_literals;
using ::testing::ElementsAre;
using testing::EmployeeDesk;
using ::testing::IsEmpty;
using Typing = std::vector<std::pair<LeaveInput, std::string>>;
using Answers = std::deque<Answer>;
using Texts = std::vector<std::string>;

constexpr Answer kYes = Answer::Yes;
constexpr Answer kNo = Answer::No;
constexpr Answer kOk = Answer::Ok;
constexpr Answer kCancel = Answer::Cancel;

const std::string kNoItem = "Selecione um Item da Lista de Tipo de Afastamento!";
const std::string kNoDays = "Preencha a Quantidade de dias do Afastamento!";
const std::string kNoDates = "Preencha as Datas de Início e Fim do Afastamento!";
const std::string kConfirmAdd = "Confirma Adicionar Novo Afastamento?";
const std::string kConfirmChange = "Confirma Alterar este Ítem?";
const std::string kIdentical = "Já Existe um Afastamento com Dados Idênticos.";
const std::string kClosed =
    "ATENÇÃO! Não é Possível Alterar Esse Item! Já Foi Gerada a Folha de Pagamento para este "
    "Funcionário!!";
const std::string kBefore =
    "Não é Permitido Corrigir ou Excluir Registros de Afastamento com início do Mês Anterior ao "
    "Período de Trabalho! ";
const std::string kAfter =
    "Não é Permitido Corrigir ou Excluir Registros de Afastamento com início do Mês Posterior ao "
    "Período de Trabalho! ";
const std::string kProceed = "Deseja Prosseguir Assim Mesmo? ";

Leave leave(const char* type, const char* first, const char* days) {
    LeaveForm form;
    form.type(Type, type);
    form.type(FirstDay, first);
    form.type(Days, days);
    return form.leave();
}

const Leave kVacation = leave("006 FÉRIAS", "10/03/2024", "10");

Leave termination() {
    LeaveForm form(parseDate("12/03/2020"));
    form.type(Type, kLeaveTypes[7]);
    form.type(FirstDay, "15/03/2024");
    form.type(TerminationType, kTerminationTypes[0]);
    form.type(NoticeType, kNoticeTypes[1]);
    return form.leave();
}

class AfastamentoTest : public ::testing::Test {
  protected:
    void SetUp() override {
        desk_.record("01", {one("001", "ANA"), one("002", "BIA")});
        desk_.file("DataIde.ivc") = "03-2024\r\nTodos\r\n";
    }

    static Employee one(const char* code, const char* name) {
        Employee made = EmployeeDesk::employee(code, name);
        made.admission = "12/03/2020";
        return made;
    }

    std::string& file() { return desk_.file("01configAf001"); }
    void record(const std::vector<Leave>& leaves, const std::string& status = "**** ") {
        file().clear();
        for (const Leave& one : leaves)
            file() += encode(one) + "\r\n";
        file() += status + "\r\n";
    }
    void start() {
        ASSERT_TRUE(screen_.open());
        ASSERT_TRUE(screen_.select(0));
        desk_.person.shown.clear();
    }
    void type(const Typing& keys) {
        for (const auto& [input, text] : keys)
            screen_.form().type(input, text);
    }
    /// Titles and texts told, "title: text".
    Texts told() {
        Texts all;
        for (const Message& one : desk_.person.shown)
            all.push_back(one.title + ": " + one.text);
        desk_.person.shown.clear();
        return all;
    }
    static Texts titled(const std::string& title, const Texts& texts) {
        Texts all;
        for (const std::string& text : texts)
            all.push_back((text == kIdentical ? "Alterar Afastamento" : title) + ": " + text);
        return all;
    }

    EmployeeDesk desk_;
    Afastamento screen_{desk_.at, desk_.locks};
};

const Typing kCertificate = {
    {Type, "007 ATESTADO_DECALRAÇÃO"}, {FirstDay, "20/03/2024"}, {Days, "3"}};

TEST_F(AfastamentoTest, EachObstacleEndsAnInclusionInItsOrder) {
    struct Case {
        Typing keys;
        Answers answers;
        Texts texts;
        std::optional<LeaveInput> blamed = {};
    };
    const Typing all = {{Type, ""}, {Days, ""}, {FirstDay, ""}, {LastDay, ""}};
    for (const Case& c : {
             Case{all, {}, {kNoItem}, Type},
             Case{{{Type, "006 FÉRIAS"}}, {}, {kNoDays}, Days},
             Case{{{Type, "006 FÉRIAS"}, {Days, "dez"}}, {}, {kNoDays}, Days},
             Case{{{Type, "006 FÉRIAS"}, {Days, "3"}}, {}, {kNoDates}, FirstDay},
             Case{{{Type, "006 FÉRIAS"}, {Days, "3"}, {LastDay, "20/03/2024"}},
                  {},
                  {kNoDates},
                  FirstDay},
             Case{kCertificate, {kNo}, {kConfirmAdd}},
             Case{{{Type, "006 FÉRIAS"},
                   {FirstDay, "31/02/2024"},
                   {LastDay, "31/03/2024"},
                   {Days, "3"}},
                  {kYes},
                  {kConfirmAdd, "Data Incorreta."},
                  FirstDay},
             Case{{{Type, "006 FÉRIAS"},
                   {FirstDay, "20/03/2024"},
                   {LastDay, "19/03/2024"},
                   {Days, ""},
                   {Days, "0"},
                   {LastDay, "19/03/2024"}},
                  {kYes},
                  {kConfirmAdd, "Período de data Incorreto."},
                  LastDay},
             Case{{{Type, "006 FÉRIAS"}, {FirstDay, "20/03/2024"}, {Days, "0"}, {Hours, "30"}},
                  {kYes},
                  {kConfirmAdd, "Dados incorretos!"},
                  Hours},
             Case{{{Type, "006 FÉRIAS"}, {FirstDay, "10/03/2024"}, {Days, "10"}},
                  {kYes},
                  {kConfirmAdd, kIdentical}},
         }) {
        record({kVacation});
        const std::string before = file();
        start();
        type(c.keys);
        desk_.person.answers = c.answers;
        EXPECT_FALSE(screen_.add());
        EXPECT_EQ(told(), titled("Adicionar Afastamento", c.texts));
        EXPECT_EQ(screen_.blamed(), c.blamed) << c.texts.back();
        EXPECT_EQ(file(), before);
        desk_.person.answers = {kYes};
    }
}

TEST_F(AfastamentoTest, RecordsALeaveAndChoosesIt) {
    start();
    EXPECT_EQ(screen_.count(true), 0U);
    type(kCertificate);
    desk_.person.answers = {kYes};
    EXPECT_TRUE(screen_.add());
    const std::string line =
        "007 ATESTADO_DECALRA\xC7\xC3O       20/03/2024  22/03/2024  003 Dias e 0 Horas  ";
    EXPECT_EQ(file(), line + std::string(211 - line.size(), ' ') + "\r\n**** \r\n");
    EXPECT_EQ(screen_.chosen(), 0U);
    EXPECT_FALSE(screen_.form().isChanged());
    EXPECT_EQ(screen_.count(true), 1U);
    EXPECT_TRUE(screen_.list().marks(0).onLeave);

    type({{Days, "5"}});
    desk_.person.shown.clear();
    desk_.person.answers = {kYes};
    EXPECT_TRUE(screen_.change());
    EXPECT_EQ(told(), Texts{"Alterar Afastamento: " + kConfirmChange});
    EXPECT_THAT(file(), ::testing::StartsWith("007 ATESTADO_DECALRA\xC7\xC3O       20/03/2024  "
                                              "24/03/2024  005 Dias e 0 Horas"));
    desk_.person.answers = {kYes};
    EXPECT_FALSE(screen_.change());
    EXPECT_EQ(told(), (Texts{"Alterar Afastamento: " + kConfirmChange,
                             "Alterar Afastamento: " + kIdentical}));
    desk_.person.answers = {kYes};
    EXPECT_TRUE(screen_.remove());
    EXPECT_EQ(desk_.person.shown.back().detail,
              "007 ATESTADO_DECALRAÇÃO, de 20/03/2024 a 24/03/2024, será excluído.");
    EXPECT_EQ(told(), (Texts{"Afastamento: Você está Prestes a Desativar este Funionário!",
                             "Afastamento: Confirma Desativar este Funionário?"}));
    EXPECT_EQ(file(), "**** \r\n");
    EXPECT_EQ(screen_.chosen(), std::nullopt);
}

TEST_F(AfastamentoTest, ChangeAndDeletionWarnOfAnotherMonth) {
    struct Case {
        const char* first;
        Answers answers;
        Texts changed;
        bool done;
    };
    for (const Case& c : {
             Case{"29/02/2024", {kCancel}, {kBefore, kProceed}, false},
             Case{"29/02/2024", {kOk, kYes}, {kBefore, kProceed, kConfirmChange}, true},
             Case{"01/04/2024", {kCancel}, {kAfter, kProceed}, false},
             Case{"01/03/2024", {kYes}, {kConfirmChange}, true},
             Case{"31/03/2024", {kNo}, {kConfirmChange}, false},
         }) {
        record({leave("006 FÉRIAS", c.first, "40")});
        const std::string before = file();
        start();
        ASSERT_TRUE(screen_.choose(0));
        type({{Days, "41"}});
        desk_.person.answers = c.answers;
        EXPECT_EQ(screen_.change(), c.done) << c.first;
        if (c.changed[0] != kConfirmChange) {
            ASSERT_FALSE(desk_.person.shown.empty());
            EXPECT_EQ(desk_.person.shown[0].icon, Icon::Critical);
            EXPECT_EQ(desk_.person.shown[1].buttons, Buttons::OkCancel);
        }
        EXPECT_EQ(desk_.person.takeTexts(), c.changed);
        EXPECT_EQ(file() == before, !c.done);
        if (c.done) continue;
        desk_.person.answers = {c.answers[0], kNo};
        EXPECT_FALSE(screen_.remove());
        EXPECT_EQ(desk_.person.takeTexts()[0],
                  c.changed[0] == kConfirmChange ? "Você está Prestes a Desativar este Funionário!"
                                                 : c.changed[0]);
        EXPECT_EQ(file(), before);
        desk_.person.answers = {kYes};
        EXPECT_TRUE(screen_.begin());
    }
}

TEST_F(AfastamentoTest, NeedsAnItemForChangeAndDeletion) {
    start();
    EXPECT_FALSE(screen_.change());
    EXPECT_FALSE(screen_.remove());
    EXPECT_EQ(told(),
              (Texts{"Alterar Afastamento: " + kNoItem, "Excluir Afastamento: " + kNoItem}));
    EXPECT_TRUE(screen_.showOnlyWithLeaves(true));
    EXPECT_FALSE(screen_.add());
    EXPECT_FALSE(screen_.choose(0));
    EXPECT_FALSE(screen_.changeActivation());
    EXPECT_EQ(told(), (Texts{"Adicionar Afastamento: Selecione um Funcionário na Lista!",
                             "Afastamento: Selecione um Funcionário na Lista!",
                             "Inativar: Para Inativar, Selecione um Funcionário!"}));
}

TEST_F(AfastamentoTest, AClosedMonthBarsChoosingAndIsAskedAgainAtRecording) {
    record({kVacation});
    start();
    desk_.locks.closed = {"001"};
    EXPECT_FALSE(screen_.choose(0));
    EXPECT_EQ(desk_.person.shown.at(0).icon, Icon::Information);
    EXPECT_EQ(told(), Texts{"Afastamento: " + kClosed});
    EXPECT_EQ(screen_.chosen(), std::nullopt);
    EXPECT_EQ(screen_.form().text(Type), "");

    const std::string before = file();
    for (const bool removes : {false, true}) {
        desk_.locks.closed.clear();
        ASSERT_TRUE(screen_.choose(0));
        type({{Days, "12"}});
        desk_.person.answers = {kYes};
        // The payroll is generated elsewhere while the operator reads the question.
        desk_.person.onAsk = [this] { desk_.locks.closed = {"001"}; };
        EXPECT_FALSE(removes ? screen_.remove() : screen_.change());
        EXPECT_EQ(desk_.person.takeTexts().back(), kClosed);
        EXPECT_EQ(file(), before);
        desk_.person.onAsk = {};
        desk_.person.answers = {kYes};
        EXPECT_TRUE(screen_.begin());
        desk_.person.shown.clear();
    }
    type(kCertificate);
    desk_.person.answers = {kYes};
    EXPECT_FALSE(screen_.add());
    EXPECT_EQ(desk_.person.takeTexts().back(), kClosed);
    type({{FirstDay, "20/04/2024"}});
    desk_.person.answers = {kYes};
    EXPECT_TRUE(screen_.add()) << "another month than the closed one";
}

TEST_F(AfastamentoTest, TellsOfLinesThatARewriteDrops) {
    const std::string stray = "nota do contador";
    record({kVacation});
    file() = stray + "\r\n\r\n006 f\xE9rias\r\n" + file();
    const std::string before = file();
    start();
    EXPECT_EQ(screen_.file().leaves.size(), 2U);
    type(kCertificate);
    desk_.person.answers = {kYes, kNo};
    EXPECT_FALSE(screen_.add());
    EXPECT_EQ(desk_.person.shown.back().detail, stray);
    EXPECT_EQ(file(), before);
    desk_.person.answers = {kYes, kYes};
    EXPECT_TRUE(screen_.add());
    EXPECT_THAT(file(), ::testing::StartsWith("006 f\xE9rias\r\n006 F\xC9RIAS "));
    EXPECT_THAT(file(), ::testing::Not(::testing::HasSubstr(stray)));
    desk_.person.shown.clear();
    type({{Days, "4"}});
    desk_.person.answers = {kYes};
    EXPECT_TRUE(screen_.change());
    EXPECT_EQ(desk_.person.shown.size(), 1U) << "nothing is left to be dropped";
}

TEST_F(AfastamentoTest, ChangesALineOfAnotherProgram) {
    const std::string beginning = "006 f\xE9rias" + std::string(20, ' ');
    file() = beginning + "28/02/2024  01/03/2024";
    start();
    desk_.person.answers = {kYes};
    ASSERT_TRUE(screen_.choose(0));
    EXPECT_EQ(screen_.form().text(Days), "3");
    EXPECT_FALSE(screen_.form().isChanged());
    type({{Days, "4"}});
    desk_.person.answers = {kOk, kYes};
    EXPECT_TRUE(screen_.change());
    const std::string line = beginning + "28/02/2024  02/03/2024  004 Dias e 0 Horas";
    EXPECT_EQ(file(), line + std::string(211 - line.size(), ' ') + "\r\n**** \r\n");
}

TEST_F(AfastamentoTest, RefusesWhenAnotherComputerChangedTheFile) {
    record({kVacation});
    start();
    type(kCertificate);
    desk_.person.answers = {kYes};
    desk_.person.onAsk = [this] {
        record({kVacation, leave("003 AUXILIO_DOENÇA", "01/05/2024", "9")});
    };
    EXPECT_FALSE(screen_.add());
    desk_.person.onAsk = {};
    EXPECT_EQ(desk_.person.takeTexts().back(), "Dados incorretos!");
    EXPECT_EQ(parseLeaveFile(file()).leaves.size(), 2U);
    EXPECT_EQ(screen_.form().text(FirstDay), "20/03/2024") << "what was typed stays";

    ASSERT_TRUE((desk_.person.answers = {kYes}, screen_.select(0)));
    type(kCertificate);
    desk_.record("01", {one("002", "BIA")});
    desk_.person.answers = {kYes};
    EXPECT_FALSE(screen_.add()) << "the employee is gone";
    EXPECT_EQ(parseLeaveFile(file()).leaves.size(), 2U);
}

TEST_F(AfastamentoTest, InactivatesStepByStep) {
    struct Case {
        Typing keys;  ///< over the termination on record
        Answers answers;
        std::string text;
        bool done = false;
    };
    const std::string dates = "Informe as Datas de Rescisão do Contrato!";
    for (const Case& c : {
             Case{{{TerminationType, ""}}, {}, "Inativar: Informe o Tipo de Rescisão do Contrato!"},
             Case{{{NoticeType, ""}}, {}, "Inativar: Informe o Tipo de Aviso!"},
             Case{{{LastDayWorked, "31/02/2024"}}, {}, "Inativar: " + dates},
             Case{{{PaymentDue, "x"}}, {}, "Inativar: " + dates},
             Case{{{NoticeEnds, "x"}}, {}, "Inativar: " + dates},
             Case{{{Dismissal, "31/02/2024"}},
                  {},
                  "Inativar: Informe a Data de Demissão do Funcionário Válida!"},
             Case{{{Dismissal, "12/03/2020"}},
                  {},
                  "Inativar: Informe a Data de Demissão do Funcionário Maior que a Data da "
                  "Admissão!"},
             Case{{{LastDayWorked, "18/03/2024"}},
                  {kNo},
                  "Aviso: Há dados digitados que não foram gravados. Deseja descartá-los?"},
             Case{{{Dismissal, "13/03/2020"}},
                  {kNo},
                  "Ativar/Inativar: Confirma  Inativar  Funcionário Selecionado?"},
             Case{
                 {}, {kYes}, "Ativar/Inativar: Confirma  Inativar  Funcionário Selecionado?", true},
         }) {
        record({kVacation, termination()});
        const std::string before = file();
        start();
        EXPECT_EQ(screen_.activationCaption(), "Inativar");
        EXPECT_TRUE(c.keys.empty() || screen_.choose(1));
        type(c.keys);
        desk_.person.answers = c.answers;
        EXPECT_EQ(screen_.changeActivation(), c.done) << c.text;
        EXPECT_EQ(told(), Texts{c.text});
        EXPECT_EQ(file() == before, !c.done);
        desk_.person.answers = {kYes};
        EXPECT_TRUE(screen_.begin());
    }
    EXPECT_EQ(screen_.activationCaption(), "Reativar");
    EXPECT_THAT(file(), ::testing::EndsWith("\r\n**** 26/04/2024\r\n"));
    EXPECT_EQ(screen_.form().text(Dismissal), "26/04/2024");
    EXPECT_TRUE(screen_.list().marks(0).inactiveSince.has_value());
}

TEST_F(AfastamentoTest, NeedsATerminationToInactivate) {
    record({kVacation});
    start();
    EXPECT_FALSE(screen_.changeActivation());
    EXPECT_EQ(told(), Texts{"Inativar: Para Inativar, informe os Dados da Rescisão do Contrato de "
                            "Trabalho para Este Funcionário!"});
    record({leave("008 rescisão_contrato_trabalho", "15/03/2024", "1")});
    start();
    EXPECT_FALSE(screen_.changeActivation());
    EXPECT_EQ(told(), Texts{"Inativar: Informe o Tipo de Rescisão do Contrato!"});
}

TEST_F(AfastamentoTest, ReactivatesUnlessATerminationDocumentStands) {
    record({termination()}, "**** 26/04/2024");
    ASSERT_TRUE(screen_.open());
    ASSERT_TRUE(screen_.select(0));
    EXPECT_EQ(told(), Texts{"Afastamento: Funcionário Inativo.!"});
    EXPECT_EQ(screen_.form().text(Dismissal), "26/04/2024");
    const std::string before = file();
    for (const char* document : {"01TRTC001", "01THRTC001", "01AviTRTC001"}) {
        desk_.file(document) = "x";
        EXPECT_FALSE(screen_.changeActivation()) << document;
        EXPECT_EQ(told(), Texts{"Reativar: Não é Permitido Ativar! Já Existe Rescisão do Contrato "
                                "de Trabalho para Este Funcionário!"});
        desk_.files.content.erase(std::string("/data/") + document);
    }
    desk_.file("01TRTC002") = "another employee's";
    EXPECT_EQ(file(), before);
    type(kCertificate);
    desk_.person.answers = {kYes};
    EXPECT_TRUE(screen_.add()) << "an inactive employee stays so";
    EXPECT_THAT(file(), ::testing::EndsWith("**** 26/04/2024\r\n"));
    desk_.person.shown.clear();
    desk_.person.answers = {kYes};
    EXPECT_TRUE(screen_.remove());
    EXPECT_EQ(told(),
              (Texts{"Excluir Afastamento: Você está Prestes a Desconsiderar este Afastamento!",
                     "Excluindo Afastamento: Confirma Excluir e Desconsiderar este Afastamento?"}));
    desk_.person.answers = {kYes};
    EXPECT_TRUE(screen_.changeActivation());
    EXPECT_EQ(told(), Texts{"Ativar/Inativar: Confirma  Reativar  Funcionário Selecionado?"});
    EXPECT_THAT(file(), ::testing::EndsWith("**** \r\n"));
}

TEST_F(AfastamentoTest, OffersTheCardsThatALeaveComesTooLateFor) {
    const EmployeeKey key{*CompanyCode::parse("01"), *EmployeeCode::parse("001")};
    for (const auto month : {2024y / 3, 2024y / 4}) {
        auto lines = blankMonth(month);
        for (PunchLine& line : lines)
            line.morningEntry = "08:00";
        desk_.file(punchFileName(key, month)) = editedPunchRecord("", month, lines);
    }
    const auto marked = [&](WorkMonth month, int day) {
        const auto line =
            loadPunches(desk_.store(), key, month)->at(static_cast<std::size_t>(day) - 1);
        return line.situation + (line.hasTimes() ? " timed" : "");
    };
    record({});
    start();
    type({{Type, "007 ATESTADO_DECALRAÇÃO"}, {FirstDay, "30/03/2024"}, {Days, "3"}});
    screen_.lookForPunches();
    EXPECT_EQ(screen_.finding(FirstDay),
              "Já há horas no cartão em 30/03/2024, 31/03/2024, 01/04/2024.");
    desk_.person.answers = {kYes, kNo};
    EXPECT_TRUE(screen_.add());
    EXPECT_EQ(desk_.person.shown.back().icon, Icon::Exclamation) << "times would be lost";
    EXPECT_EQ(desk_.person.shown.back().detail,
              "3 dias. Perdem as horas: 30/03/2024, 31/03/2024, 01/04/2024.");
    EXPECT_EQ(marked(2024y / 3, 30), " timed");
    type({{Hours, "1"}});
    desk_.person.answers = {kYes, kYes};
    EXPECT_TRUE(screen_.change());
    EXPECT_EQ(marked(2024y / 3, 31), "AFASTAMENTO");
    EXPECT_EQ(marked(2024y / 4, 1), "AFASTAMENTO");
    EXPECT_EQ(marked(2024y / 4, 2), " timed");

    type({{Hours, "2"}});
    desk_.person.shown.clear();
    desk_.person.answers = {kYes};
    EXPECT_TRUE(screen_.change());
    EXPECT_EQ(desk_.person.shown.size(), 1U) << "every day is marked already";

    record({});
    start();
    const Leave end = termination();
    type({{Type, end.type},
          {FirstDay, end.firstDay},
          {TerminationType, end.terminationType},
          {NoticeType, end.noticeType}});
    desk_.person.answers = {kYes, kYes};
    EXPECT_TRUE(screen_.add());
    EXPECT_EQ(marked(2024y / 3, 16) + marked(2024y / 4, 27), "AFASTAMENTO timed");
    desk_.person.shown.clear();
    desk_.person.answers = {kYes, kYes};
    EXPECT_TRUE(screen_.changeActivation());
    EXPECT_EQ(desk_.person.shown.back().detail,
              "4 dias. Perdem as horas: 27/04/2024, 28/04/2024, 29/04/2024, 30/04/2024.")
        << "those marked before are not asked about again";
    EXPECT_EQ(marked(2024y / 3, 15), " timed");
    EXPECT_EQ(marked(2024y / 3, 16) + marked(2024y / 4, 30), "");
    EXPECT_EQ(screen_.selected()->dismissal, "26/04/2024");
    EXPECT_EQ(screen_.contradiction(), "");
}

TEST_F(AfastamentoTest, ListsEveryoneOrThoseWithAFile) {
    record({}, "**** ");
    start();
    EXPECT_EQ(screen_.count(false), 2U);
    EXPECT_EQ(screen_.count(true), 1U);
    EXPECT_THAT(screen_.file().leaves, IsEmpty());
    EXPECT_FALSE(screen_.isInactive());
    EXPECT_EQ(screen_.periodCaption(), "Período : 01/03/2024 á 31/03/2024");
    EXPECT_TRUE(screen_.showOnlyWithLeaves(true));
    EXPECT_EQ(screen_.list().employees().size(), 1U);
    EXPECT_EQ(screen_.selectedPosition(), 0U);
    EXPECT_TRUE(screen_.showOnlyWithLeaves(false));
    type(kCertificate);
    desk_.person.answers = {kNo};
    EXPECT_FALSE(screen_.select(1)) << "what is typed would be lost";
    EXPECT_EQ(screen_.selectedPosition(), 0U);
    desk_.person.answers = {kYes};
    EXPECT_TRUE(screen_.select(EmployeeCode::parse("002").value()));
    EXPECT_EQ(screen_.selected()->name, "BIA");
    EXPECT_TRUE(screen_.filterBy(ShiftFilter::Tres));
    EXPECT_EQ(screen_.selected(), nullptr);
    EXPECT_TRUE(screen_.select(EmployeeCode::parse("001").value())) << "of a shift not listed";
    desk_.files.content.erase("/data/DataIde.ivc");
    EXPECT_FALSE(screen_.open());
    EXPECT_EQ(desk_.person.takeTexts().back(), "Informe um Mês de Trabalho!!");
}

}  // namespace
}  // namespace winvrx
