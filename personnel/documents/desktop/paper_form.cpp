#include "personnel/documents/desktop/paper_form.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/field.h"
#include "foundation/widgets/desktop/look.h"
#include "personnel/documents/documentos.h"
#include "timecard/schedule/typed_time.h"

#include <QAbstractButton>
#include <QGridLayout>
#include <QKeySequence>
#include <QLabel>
#include <QVBoxLayout>

namespace winvrx {

namespace {

constexpr std::size_t kNarrow = 14;  // characters; two such fields stand side by side

FieldKind kindFor(const PaperInput& input) {
    switch (input.type) {
        case InputType::Date:
            return {.hint = dateHint, .completed = completedDate};
        case InputType::Time:
            return kTimeField;
        case InputType::Money:
            return kMoneyField;
        case InputType::Number:
            return kNumberField;
        case InputType::Choice:
            return {.choices = input.choices};
        case InputType::Text:
            break;
    }
    return kTextField;
}

/// A field of money shows "R$ " before what it stores.
std::size_t shownWidth(const PaperInput& input) {
    return input.width + (input.type == InputType::Money ? 3 : 0);
}

/// Those of the window's buttons and labels.
QString altLetters(const QWidget& window) {
    QString letters;
    const auto take = [&letters](const QString& caption) {
        const QString key = QKeySequence::mnemonic(caption).toString();
        if (!key.isEmpty()) letters += key.back();
    };
    for (const auto* button : window.findChildren<QAbstractButton*>())
        take(button->text());
    for (const auto* label : window.findChildren<QLabel*>())
        if (label->buddy()) take(label->text());
    return letters;
}

/// With the first of its letters that is free, which is then taken; as it is where none is.
QString captionOf(const PaperInput& input, QString& taken) {
    for (const char letter : input.caption) {
        const QChar key = QChar::fromLatin1(letter).toUpper();
        if (key < QLatin1Char('A') || key > QLatin1Char('Z') || taken.contains(key)) continue;
        taken += key;
        return withMnemonic(input.caption, letter);
    }
    return toQt(std::string(input.caption));
}

}  // namespace

PaperForm::PaperForm(Documentos& screen, QWidget* parent) : QWidget(parent), screen_(screen) {
    column_ = new QVBoxLayout(this);
    look::layOutPart(*column_);
}

void PaperForm::showPaper() {
    delete inputs_;
    fields_.clear();
    inputs_ = new QWidget(this);
    auto* grid = new QGridLayout(inputs_);
    grid->setContentsMargins({});
    grid->setHorizontalSpacing(look::kGap);
    grid->setVerticalSpacing(look::kSmallGap / 2);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    int cell = 0;
    QString taken = altLetters(*window());
    Field* last = nullptr;
    for (const PaperInput& input : allInputsOf(screen_.paper())) {
        const bool narrow = input.width <= kNarrow;
        if (!narrow && cell % 2 == 1) ++cell;
        last = make(input, captionOf(input, taken), inputs_);
        grid->addWidget(last, cell / 2, cell % 2, 1, narrow ? 1 : 2, Qt::AlignTop);
        cell += narrow ? 1 : 2;
    }
    last->input()->setProperty("lastField", true);
    const auto own = inputsOf(screen_.paper());
    first_ = std::string(own.empty() ? commonInputs().front().name : own.front().name);
    column_->addWidget(inputs_);
    column_->addStretch();
    refresh();
}

Field* PaperForm::make(const PaperInput& input, const QString& caption, QWidget* parent) {
    const std::string name(input.name);
    auto* field = new Field({.caption = caption,
                             .objectName = QStringLiteral("documents.") + toQt(name),
                             .width = shownWidth(input),
                             .kind = kindFor(input),
                             .today = screen_.today()},
                            parent);
    // The scrolled form takes its full height.
    field->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    fields_[name] = field;
    connect(field, &Field::edited, this, [this, name, field] {
        screen_.type(name, field->stored());
        emit edited();
    });
    connect(field, &Field::finished, this, [this, name, input, field] {
        screen_.type(name, field->stored());
        field->setFinding(toQt(screen_.finding(input)));
        emit edited();
    });
    return field;
}

void PaperForm::refresh() {
    for (const auto& [name, field] : fields_)
        field->setStored(screen_.text(name));
    setEnabled(screen_.selected() != nullptr);
}

void PaperForm::focus(const std::string& input) {
    if (const auto found = fields_.find(input); found != fields_.end()) found->second->takeFocus();
}

void PaperForm::focusFirst() {
    focus(first_);
}

}  // namespace winvrx
