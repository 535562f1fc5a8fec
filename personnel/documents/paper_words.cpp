#include "personnel/documents/paper_words.h"

#include "foundation/register/merge_fields.h"
#include "foundation/values/money.h"
#include "foundation/values/text.h"
#include "personnel/contract/amount_in_words.h"
#include "personnel/leaves/leave_types.h"

#include <algorithm>
#include <vector>

namespace winvrx {

namespace {

constexpr std::string_view kYes = "sim";
constexpr int kEndOfSalaryFamily = 14;  // years, Lei 8.213/1991 art. 66
constexpr int kToldBefore = 90;         // days

const std::string& textIn(const PaperTexts& texts, std::string_view name) {
    static const std::string kNone;
    const auto found = texts.find(name);
    return found == texts.end() ? kNone : found->second;
}

/// "15 de março de 2024".
std::string writtenDate(Date date) {
    const int day = dayNumber(date);
    return (day == 1 ? "1º" : std::to_string(day)) + " de " + std::string(monthName(date.month())) +
           " de " + padded(int{date.year()}, 4);
}

void putInput(MergeWords& words, const PaperInput& input, const std::string& text) {
    const std::string name(input.name);
    words.put(name, text);
    if (input.type == InputType::Date) {
        const auto date = parseDate(text);
        words.put(name + "_extenso", date ? writtenDate(*date) : std::string());
    }
    if (input.type == InputType::Money) {
        const auto amount = parseAmountForWords(text);
        words.put(name + "_extenso", amount ? amountInProse(*amount) : std::string());
    }
    if (!input.choices) return;
    for (const Choice& choice : input.choices()) {
        if (choice.code == text) words.put(name, choice.text);
        if (!choice.code.empty())
            words.put(name + "_" + choice.code,
                      std::string(choice.code == text ? kYes : std::string_view()));
    }
}

/// The register has number and series in one column: "12345/001", "12345 001".
void putBooklet(MergeWords& words, const std::string& booklet) {
    const std::size_t end = booklet.find_first_of("/- ");
    words.put("ctps_numero", booklet.substr(0, end));
    words.put("ctps_serie", end == std::string::npos
                                ? std::string()
                                : std::string(trimmed(booklet.substr(end + 1))));
}

void putVouchers(MergeWords& words, const PaperTexts& texts) {
    const auto count = parseWholeNumber(textIn(texts, "quantidade"), 0, 9999);
    const auto price = parseMoney(textIn(texts, "valor_vale"));
    words.put("total_vales",
              count && price ? moneyText(Money{*count * price->cents}) : std::string());
}

std::vector<MergeWords> dayRows(const MergeWords& words, const PaperTexts& texts) {
    std::vector<MergeWords> rows;
    const auto first = parseDate(textIn(texts, "periodo_inicio"));
    const auto last = parseDate(textIn(texts, "periodo_fim"));
    if (!first || !last) return rows;
    for (Date day = *first; day <= *last && rows.size() < kMostSheetDays; day = plusDays(day, 1)) {
        rows.push_back(words);
        rows.back().put("dia", padded(dayNumber(day), 2) + "/");
        rows.back().put("semana", std::string(weekdayShort(weekdayOf(day))));
    }
    return rows;
}

std::vector<MergeWords> accountRows(const MergeWords& words, const FinalAccount& account) {
    std::vector<MergeWords> rows;
    for (const PaidItem& item : account.items) {
        rows.push_back(words);
        rows.back().put("verba", item.words);
        rows.back().put("quantidade_verba", item.quantity);
        rows.back().put("provento", item.credit);
        rows.back().put("desconto", item.debit);
    }
    return rows;
}

void putTermination(DocumentWords& all, const PaperSubject& subject) {
    const auto& leave = subject.termination;
    // The list's texts begin with a number: "01. Dispensa sem Justa Causa".
    const std::string type(leave ? terminationTextOf(leave->terminationType) : "");
    all.words.put("rescisao", type.substr(std::min(type.size(), std::size_t{4})));
    all.words.put("total_proventos", subject.account.credits);
    all.words.put("total_descontos", subject.account.debits);
    all.words.put("liquido", subject.account.net);
    all.lists["verbas"] = accountRows(all.words, subject.account);
}

template <typename Visit>
void forEachChild(const PaperTexts& texts, Visit visit) {
    for (int number = 1; number <= kMostChildren; ++number) {
        const std::string& name = textIn(texts, "filho" + std::to_string(number));
        if (!trimmed(name).empty())
            visit(name, textIn(texts, "nascimento" + std::to_string(number)));
    }
}

std::vector<MergeWords> childRows(const MergeWords& words, const PaperTexts& texts) {
    std::vector<MergeWords> rows;
    forEachChild(texts, [&](const std::string& name, const std::string& birth) {
        rows.push_back(words);
        rows.back().put("filho", name);
        rows.back().put("nascimento_filho", birth);
    });
    return rows;
}

Agreement agreementOf(const PaperTexts& texts) {
    const std::string& form = textIn(texts, "tratamento");
    return form == "M"   ? Agreement::Masculine
           : form == "F" ? Agreement::Feminine
                         : Agreement::Neutral;
}

}  // namespace

DocumentWords paperWords(const PaperSubject& subject, Paper paper, const PaperTexts& texts) {
    DocumentWords all{mergeWords(subject.company, subject.employee), agreementOf(texts)};
    MergeWords& words = all.words;
    for (const PaperInput& input : allInputsOf(paper))
        putInput(words, input, textIn(texts, input.name));
    words.put("domestico", std::string(textIn(texts, "regime") == "domestico" ? kYes : ""));
    putBooklet(words, subject.employee.workBooklet);
    if (kindOf(paper).isOfTerminated) putTermination(all, subject);
    if (paper == Paper::ValeTransporte) putVouchers(words, texts);
    if (paper == Paper::FolhaPonto) all.lists["dias"] = dayRows(words, texts);
    if (paper == Paper::SalarioFamilia) all.lists["filhos"] = childRows(words, texts);
    return all;
}

Date fourteenOn(Date birth) {
    const Date same = birth + std::chrono::years{kEndOfSalaryFamily};
    return same.ok() ? same : plusDays(lastDay(monthOf(same)), 1);
}

std::string childrenRemark(const PaperTexts& texts, Date today) {
    std::vector<std::string> remarks;
    forEachChild(texts, [&](const std::string& name, const std::string& birth) {
        const auto born = parseDate(birth);
        if (!born || fourteenOn(*born) > plusDays(today, kToldBefore)) return;
        const Date end = fourteenOn(*born);
        remarks.push_back(name +
                          (end <= today ? " completou 14 anos em " : " completa 14 anos em ") +
                          dateText(end) + ".");
    });
    return joined(remarks, " ");
}

}  // namespace winvrx
