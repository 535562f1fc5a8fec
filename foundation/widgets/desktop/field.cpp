#include "foundation/widgets/desktop/field.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/values/text.h"
#include "foundation/widgets/desktop/enter_key.h"
#include "foundation/widgets/desktop/look.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QCoreApplication>
#include <QFontMetricsF>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTextDocument>
#include <QVBoxLayout>
#include <QtMath>

#include <algorithm>

namespace winvrx {

namespace {

// With the frame.
constexpr int kTimeInDigits = 11;
constexpr int kNumberInDigits = 8;
constexpr int kLongestCutShown = 20;
constexpr double kRoomBehindLine = 0.5;  // of a letter
constexpr int kNoteLines = 13;

/// What a number is without its punctuation, in whatever case.
QString lettersOf(const QString& text) {
    QString letters;
    for (const QChar c : text)
        if (c.isLetterOrNumber()) letters += c.toUpper();
    return letters;
}

QString fullText(int width) {
    return QStringLiteral("%1 de %1").arg(width);
}

QString shortened(const QString& text) {
    return text.size() <= kLongestCutShown ? text : text.left(kLongestCutShown) + QChar(u'…');
}

}  // namespace

Field::Field(const Texts& texts, QWidget* parent)
    : QWidget(parent),
      kind_(texts.kind),
      today_(texts.today),
      width_(static_cast<int>(texts.width)),
      input_(makeInput()) {
    look::name(*input_, texts.objectName, texts.caption);
    frame(texts.caption);
}

Field::Field(const QString& caption, QWidget* input, QWidget* parent)
    : QWidget(parent), input_(input) {
    frame(caption);
}

QWidget* Field::makeInput() {
    if (kind_.choices) return makeList();
    if (kind_.isNotes) return makeNotes();
    line_ = new QLineEdit;
    connectLine();
    shapeLine();
    return line_;
}

QWidget* Field::makeNotes() {
    notes_ = new QPlainTextEdit;
    notes_->setTabChangesFocus(true);
    connect(notes_, &QPlainTextEdit::textChanged, this, [this] {
        limitNotes();
        emit edited();
    });
    if (kind_.lineWidth == 0) {
        // As in every other field.
        onEnter(*notes_, [this] {
            QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
            QCoreApplication::sendEvent(this, &enter);
        });
        return notes_;
    }
    notes_->setFont(look::reportFont());
    notes_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    const QFontMetricsF metrics(notes_->font());
    const double around = 2 * (notes_->document()->documentMargin() + notes_->frameWidth()) +
                          notes_->verticalScrollBar()->sizeHint().width();
    const double letters = static_cast<double>(kind_.lineWidth) + kRoomBehindLine;
    notes_->setFixedWidth(qCeil(metrics.horizontalAdvance(QLatin1Char('0')) * letters + around));
    notes_->setMinimumHeight(qCeil(metrics.lineSpacing() * kNoteLines));
    return notes_;
}

QWidget* Field::makeList() {
    list_ = new QComboBox;
    list_->setFont(look::fixedFont());
    list_->setPlaceholderText(QStringLiteral("Escolha…"));
    for (const Choice& choice : kind_.choices())
        list_->addItem(toQt(choice.text), toQt(choice.code));
    list_->setCurrentIndex(-1);
    list_->view()->installEventFilter(this);
    connect(list_, &QComboBox::currentIndexChanged, this, [this] {
        finding_.clear();
        emit edited();
        emit finished();
    });
    return list_;
}

void Field::shapeLine() {
    if (kind_.shape == FieldKind::Shape::Text) return;
    const bool isTime = kind_.shape == FieldKind::Shape::Time;
    line_->setFont(look::fixedFont());
    line_->setAlignment(isTime ? Qt::AlignCenter : Qt::AlignRight);
    if (isTime) line_->setPlaceholderText(QStringLiteral("--:--"));
    const int digit = line_->fontMetrics().horizontalAdvance(QLatin1Char('0'));
    if (isTime)
        line_->setMaximumWidth(digit * kTimeInDigits);
    else
        line_->setFixedWidth(digit * kNumberInDigits);
}

void Field::connectLine() {
    connect(line_, &QLineEdit::textChanged, this, [this] {
        takeTyping();
        showHint(Entry::Typing);
        if (line_->isModified()) emit edited();
    });
    connect(line_, &QLineEdit::editingFinished, this, [this] {
        if (!line_->isModified()) return;
        complete();
        showHint(Entry::Left);
        emit finished();
    });
}

void Field::takeTyping() {
    finding_.clear();
    cut_.clear();
    if (line_->isModified()) {
        punctuate();
        limit([this](int start, int count) {
            const QSignalBlocker quiet(line_);
            line_->setSelection(start, count);
            line_->del();
        });
    }
    typed_ = line_->text();
}

/// Leaves alone what changed in its punctuation only, so that a point can be deleted and an edit
/// be undone.
void Field::punctuate() {
    const QString typed = line_->text();
    if (!kind_.completesTyping || lettersOf(typed) == lettersOf(typed_)) return;
    const QString full = toQt(kind_.completed(trimmed(toUtf8(typed))));
    if (full == typed || full.size() > width_) return;
    const auto before = lettersOf(typed.left(line_->cursorPosition())).size();
    const QSignalBlocker quiet(line_);
    line_->selectAll();
    line_->insert(full);
    int place = 0;
    while (lettersOf(full.left(place)).size() < before)
        ++place;
    line_->setCursorPosition(place);
}

template <typename Cut>
void Field::limit(Cut&& cut) {
    const QString typed = text();
    const int excess = static_cast<int>(typed.size()) - width_;
    if (excess <= 0) return;
    const int cursor = line_ ? line_->cursorPosition() : notes_->textCursor().position();
    const int start = std::max(excess, cursor) - excess;
    cut(start, excess);
    const bool oneKey = excess == 1 && text() == typed_;
    cut_ = oneKey ? fullText(width_)
                  : QStringLiteral("“%1” cortado: o que passou de %2 letras.")
                        .arg(shortened(typed.mid(start, excess)))
                        .arg(width_);
}

void Field::frame(const QString& caption) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(look::kSmallGap / 2);
    label_ = look::label(caption, look::TextSize::Body, this);
    label_->setBuddy(input_);
    column->addWidget(label_);
    column->addWidget(input_);
    hint_ =
        look::paragraph(input_->objectName() + QStringLiteral(".hint"), look::TextSize::Hint, this);
    hint_->setMinimumHeight(hint_->fontMetrics().height());
    column->addWidget(hint_);
    if (input_->accessibleName().isEmpty()) look::name(*input_, input_->objectName(), caption);
}

void Field::setStored(const std::string& text) {
    stored_ = text;
    put(kind_.stored ? kind_.completed(text) : text);
    shown_ = shownNow();
}

std::string Field::stored() const {
    if (!isChanged()) return stored_;
    if (kind_.lineWidth > 0) return kind_.stored(toUtf8(text()));
    const std::string typed(trimmed(toUtf8(text())));
    return kind_.stored ? kind_.stored(typed) : typed;
}

void Field::showInstead(const QString& text) {
    put(toUtf8(text));
    shown_ = shownNow();
}

void Field::put(const std::string& text) {
    if (line_) {
        finding_.clear();
        line_->setText(toQt(text));
        line_->setCursorPosition(0);
    } else if (list_) {
        const QSignalBlocker quiet(list_);
        list_->setCurrentIndex(
            list_->findData(toQt(kind_.completed ? kind_.completed(text) : text)));
        list_->update();
        setFinding({});
    } else {
        const QSignalBlocker quiet(notes_);
        notes_->setPlainText(toQt(text));
        limitNotes();
    }
}

QString Field::text() const {
    if (line_) return line_->text();
    if (list_) return list_->currentData().toString();
    // The document keeps no-break spaces, which its plain text turns into blanks.
    return notes_->document()->toRawText().replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
}

QString Field::shownNow() const {
    return list_ ? QString::number(list_->currentIndex()) : text();
}

void Field::setPlaceholder(const QString& text) {
    line_->setPlaceholderText(text);
}

void Field::placeIn(QGridLayout& grid, int row, int column, const QString& suffix) {
    grid.addWidget(label_, row, column);
    grid.addWidget(input_, row, column + 1);
    grid.addWidget(look::label(suffix, look::TextSize::Body, parentWidget()), row, column + 2);
    grid.addWidget(hint_, row + 1, column, 1, 3);
    hint_->setWordWrap(false);
    hide();
}

void Field::placeInRow(QGridLayout& grid, int row, bool wide) {
    grid.addWidget(label_, row, 0);
    grid.addWidget(input_, row, 1, 1, wide ? 2 : 1, wide ? Qt::AlignLeft : Qt::Alignment());
    if (!wide) grid.addWidget(hint_, row, 2);
    hint_->setWordWrap(false);
    hide();
}

void Field::setPlacedVisible(bool visible) {
    for (QWidget* part : {static_cast<QWidget*>(label_), input_, static_cast<QWidget*>(hint_)})
        part->setVisible(visible);
}

QWidget* Field::bareInput() {
    hide();
    return input_;
}

void Field::takeFocus() {
    input_->setFocus(Qt::TabFocusReason);
    if (line_) line_->selectAll();
}

void Field::setReadOnly(bool readOnly) {
    line_->setFrame(true);
    line_->setMinimumHeight(line_->sizeHint().height());
    line_->setFrame(!readOnly);
    line_->setReadOnly(readOnly);
    line_->setFocusPolicy(readOnly ? Qt::NoFocus : Qt::StrongFocus);
}

bool Field::isReadOnly() const {
    return line_ && line_->isReadOnly();
}

void Field::setWarning(const QString& text) {
    hint_->setText(text.isEmpty() ? text : QStringLiteral("⚠ ") + text);
    look::setTint(*hint_, look::Tint::Warning);
}

void Field::setFinding(const QString& text) {
    finding_ = text;
    if (!notes_) showHint(Entry::Left);
}

void Field::setNote(const QString& text) {
    note_ = text;
    showHint(Entry::Left);
}

Hint Field::ownHint(Entry entry) const {
    if (!line_ || !line_->isModified()) return {};
    const std::string typed = toUtf8(line_->text());
    const Hint hint = textHint(typed);
    if (hint.tone != Hint::Tone::None || !kind_.hint || trimmed(typed).empty()) return hint;
    return kind_.hint(typed, entry);
}

void Field::showHint(Entry entry) {
    const Hint hint = ownHint(entry);
    const bool isRight = hint.tone == Hint::Tone::Good && finding_.isEmpty();
    // What has a form of its own is full where it is right.
    const bool isFull = line_ && line_->isModified() && line_->text().size() == width_ &&
                        !kind_.hint && !kind_.completed && entry == Entry::Typing;
    const QString own = hint.tone == Hint::Tone::Warning ? toQt(hint.text) : finding_;
    setWarning(own.isEmpty() ? cut_ : own);
    if (!hint_->text().isEmpty() || (!isRight && !isFull && note_.isEmpty())) return;
    hint_->setText(isRight  ? QStringLiteral("✓ ") + toQt(hint.text)
                   : isFull ? fullText(width_)
                            : note_);
    look::setTint(*hint_, look::Tint::Quiet);
}

/// As if typed, so that the field counts as edited.
void Field::complete() {
    const std::string typed(trimmed(toUtf8(line_->text())));
    const QString completed = toQt(kind_.completedOn ? kind_.completedOn(typed, today_)
                                   : kind_.completed ? kind_.completed(typed)
                                                     : toUtf8(line_->text()));
    if (completed == line_->text() || completed.size() > width_) return;
    line_->selectAll();
    line_->insert(completed);
}

/// Takes back what goes beyond the column, then says how much room is left.
void Field::limitNotes() {
    cut_.clear();
    limit([this](int start, int count) {
        const QSignalBlocker quiet(notes_);
        QTextCursor cursor = notes_->textCursor();
        cursor.setPosition(start);
        cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor, count);
        cursor.removeSelectedText();
    });
    typed_ = text();
    const std::string typed = toUtf8(typed_);
    const Hint hint = kind_.hint ? kind_.hint(typed, Entry::Typing) : textHint(typed);
    setWarning(hint.tone == Hint::Tone::Warning && cut_.isEmpty() ? toQt(hint.text) : cut_);
    if (!hint_->text().isEmpty()) return;
    hint_->setText(kind_.hint
                       ? toQt(hint.text)
                       : QStringLiteral("%1 de %2 caracteres").arg(typed_.size()).arg(width_));
    look::setTint(*hint_, look::Tint::Quiet);
}

/// A list without a choice opens with its first row marked, from where the keys go on.
bool Field::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Show && !list_->view()->currentIndex().isValid())
        list_->view()->setCurrentIndex(list_->model()->index(0, list_->modelColumn()));
    return QWidget::eventFilter(watched, event);
}

QString withMnemonic(std::string_view caption, char letter) {
    QString text = toQt(caption);
    const auto place = text.indexOf(QLatin1Char(letter), 0, Qt::CaseInsensitive);
    if (place >= 0) text.insert(place, QLatin1Char('&'));
    return text;
}

}  // namespace winvrx
