#include "foundation/widgets/desktop/checked_field.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/values/input_checks.h"

#include <QLineEdit>

namespace winvrx {

namespace {

Hint hintFor(FieldCheck check, const std::string& text, Entry entry) {
    switch (check) {
        case FieldCheck::None:
        case FieldCheck::PostalCode:
            return {};
        case FieldCheck::Date:
            return dateHint(text, entry);
        case FieldCheck::Cnpj:
            return idHint(checkCnpj(text), "CNPJ", entry);
        case FieldCheck::Cpf:
            return idHint(checkCpf(text), "CPF", entry);
        case FieldCheck::CnpjOrCpf:
            return idHint(checkCnpjOrCpf(text), "CNPJ/CPF", entry);
        case FieldCheck::Pis:
            return idHint(checkPis(text), "PIS", entry);
        case FieldCheck::Occupation:
            return occupationHint(text, entry);
        case FieldCheck::Money:
            return moneyHint(text, entry);
    }
    return {};
}

void showHint(TextField& field, FieldCheck check, Entry entry) {
    if (!field.edit()->isModified()) return;
    const std::string text = toUtf8(field.text());
    Hint hint = textHint(text);
    if (hint.tone == Hint::Tone::None) hint = hintFor(check, text, entry);
    if (hint.tone == Hint::Tone::Good)
        field.setInformation(QStringLiteral("✓ ") + toQt(hint.text));
    else
        field.setWarning(toQt(hint.text));
}

std::string completedText(FieldCheck check, const std::string& text) {
    switch (check) {
        case FieldCheck::Date:
            return completedDate(text);
        case FieldCheck::Cpf:
            return completedCpf(text);
        case FieldCheck::PostalCode:
            return completedPostalCode(text);
        case FieldCheck::Money:
            return completedMoney(text);
        default:
            return text;
    }
}

/// As if typed, so that the field counts as edited.
void complete(QLineEdit& edit, FieldCheck check) {
    const QString completed = toQt(completedText(check, toUtf8(edit.text().trimmed())));
    if (completed == edit.text() || completed.size() > edit.maxLength()) return;
    edit.selectAll();
    edit.insert(completed);
}

}  // namespace

TextField* checkedField(const QString& caption, const QString& objectName, std::size_t width,
                        FieldCheck check, QWidget* parent) {
    auto* field = new TextField(caption, objectName, static_cast<int>(width), nullptr, parent);
    QObject::connect(field->edit(), &QLineEdit::textChanged, field,
                     [field, check] { showHint(*field, check, Entry::Typing); });
    QObject::connect(field->edit(), &QLineEdit::editingFinished, field, [field, check] {
        if (field->edit()->isModified()) complete(*field->edit(), check);
        showHint(*field, check, Entry::Left);
    });
    return field;
}

void setReadOnly(TextField& field, bool readOnly) {
    QLineEdit* edit = field.edit();
    edit->setFrame(true);
    edit->setMinimumHeight(edit->sizeHint().height());
    edit->setFrame(!readOnly);
    edit->setReadOnly(readOnly);
    edit->setFocusPolicy(readOnly ? Qt::NoFocus : Qt::StrongFocus);
}

QString withMnemonic(std::string_view caption, char letter) {
    QString text = toQt(caption);
    const auto place = text.indexOf(QLatin1Char(letter), 0, Qt::CaseInsensitive);
    if (place >= 0) text.insert(place, QLatin1Char('&'));
    return text;
}

}  // namespace winvrx
