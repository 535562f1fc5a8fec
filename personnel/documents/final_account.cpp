#include "foundation/files/file_faults.h"
#include "personnel/documents/paper_subject.h"
#include "personnel/termination/termination_sheet.h"

#include <array>

namespace winvrx {

namespace {

constexpr std::array kUsualItems = {"Saldo de salário",
                                    "Aviso prévio indenizado",
                                    "13º salário proporcional",
                                    "Férias vencidas",
                                    "Férias proporcionais",
                                    "1/3 constitucional de férias",
                                    "Horas extras",
                                    "Contribuição previdenciária",
                                    "Imposto de renda",
                                    "Outros"};

FinalAccount accountOf(const TerminationSheet& sheet) {
    FinalAccount account{.credits = moneyText(sheet.gross),
                         .debits = moneyText(sheet.deductions),
                         .net = moneyText(sheet.net)};
    for (const TerminationLine& line : sheet.credits)
        account.items.push_back({line.words, line.quantity, moneyText(line.amount)});
    for (const TerminationLine& line : sheet.debits)
        account.items.push_back({line.words, line.quantity, {}, moneyText(line.amount)});
    return account;
}

FinalAccount accountByHand(const Fault& fault) {
    FinalAccount account{.remark = "Os valores ficam em branco: " + fault.explanation()};
    for (const char* item : kUsualItems)
        account.items.push_back({item});
    return account;
}

}  // namespace

FinalAccount loadAccount(const Store& store, const std::filesystem::path& legalFolder,
                         const CompanyCode& company, const Employee& employee) {
    try {
        return accountOf(loadTerminationSheet(store, legalFolder, company, employee));
    } catch (const FileFault&) {
        throw;
    } catch (const Fault& fault) {
        return accountByHand(fault);
    }
}

}  // namespace winvrx
