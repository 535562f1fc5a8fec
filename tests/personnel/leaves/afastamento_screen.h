#pragma once

#include "personnel/leaves/afastamento.h"
#include "personnel/leaves/leave_types.h"
#include "tests/support/employee_desk.h"

#include <gtest/gtest.h>

#include <deque>
#include <string>
#include <utility>
#include <vector>

// The leave screen of one company with two employees, and the texts that it speaks.

namespace winvrx {

using enum LeaveInput;
using namespace std::chrono_literals;
using testing::EmployeeDesk;
using Typing = std::vector<std::pair<LeaveInput, std::string>>;
using Answers = std::deque<Answer>;
using Texts = std::vector<std::string>;

inline constexpr Answer kYes = Answer::Yes;
inline constexpr Answer kNo = Answer::No;
inline constexpr Answer kOk = Answer::Ok;
inline constexpr Answer kCancel = Answer::Cancel;

inline const std::string kNoItem = "Selecione um Item da Lista de Tipo de Afastamento!";
inline const std::string kNoDays = "Preencha a Quantidade de dias do Afastamento!";
inline const std::string kNoDates = "Preencha as Datas de Início e Fim do Afastamento!";
inline const std::string kConfirmAdd = "Confirma Adicionar Novo Afastamento?";
inline const std::string kConfirmChange = "Confirma Alterar este Ítem?";
inline const std::string kIdentical = "Já Existe um Afastamento com Dados Idênticos.";
inline const std::string kClosed =
    "ATENÇÃO! Não é Possível Alterar Esse Item! Já Foi Gerada a Folha de Pagamento para este "
    "Funcionário!!";
inline const std::string kBefore =
    "Não é Permitido Corrigir ou Excluir Registros de Afastamento com início do Mês Anterior ao "
    "Período de Trabalho! ";
inline const std::string kAfter =
    "Não é Permitido Corrigir ou Excluir Registros de Afastamento com início do Mês Posterior ao "
    "Período de Trabalho! ";
inline const std::string kProceed = "Deseja Prosseguir Assim Mesmo? ";

inline Leave leave(const char* type, const char* first, const char* days) {
    LeaveForm form;
    form.type(Type, type);
    form.type(FirstDay, first);
    form.type(Days, days);
    return form.leave();
}

inline const Leave kVacation = leave("006 FÉRIAS", "10/03/2024", "10");

inline Leave termination() {
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

inline const Typing kCertificate = {
    {Type, "007 ATESTADO_DECALRAÇÃO"}, {FirstDay, "20/03/2024"}, {Days, "3"}};

}  // namespace winvrx
