#include "output/stocks/desktop/alignment_pad.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/field.h"
#include "foundation/widgets/desktop/look.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace winvrx {

namespace {

constexpr int kBoxCharacters = 8;

}  // namespace

AlignmentPad::AlignmentPad(QWidget* parent) : QWidget(parent) {
    auto* column = new QVBoxLayout(this);
    look::layOutPart(*column);
    column->setSpacing(look::kMargin);
    column->addWidget(buildAxis(QStringLiteral("Esquerda <===> Direita"), horizontal_,
                                "alinhamento.horizontal",
                                arrow(QStringLiteral("&Esquerda"), "left", Qt::CTRL | Qt::Key_Left,
                                      "left", Direction::Left),
                                arrow(QStringLiteral("&Direita"), "right", Qt::CTRL | Qt::Key_Right,
                                      "right", Direction::Right)));
    column->addWidget(buildAxis(
        QStringLiteral("Cima <==> Baixo"), vertical_, "alinhamento.vertical",
        arrow(QStringLiteral("Para &Cima"), "up", Qt::CTRL | Qt::Key_Up, "up", Direction::Up),
        arrow(QStringLiteral("Para &Baixo"), "down", Qt::CTRL | Qt::Key_Down, "down",
              Direction::Down)));
    column->addWidget(buildLineOffset());
    column->addWidget(
        look::label(QStringLiteral("Ctrl e uma seta movem também. Cada passo: 20 twips (0,35 mm)."),
                    look::TextSize::Hint, this));
}

QAbstractButton* AlignmentPad::arrow(const QString& text, const char* icon, const QKeySequence& key,
                                     const char* name, Direction direction) {
    auto* button = new QPushButton(look::icon(QLatin1String(icon)), text, this);
    look::name(*button, QStringLiteral("alinhamento.") + QLatin1String(name), text);
    button->setToolTip(key.toString(QKeySequence::NativeText));
    button->setAutoDefault(false);
    button->setAutoRepeat(true);
    const auto move = [this, direction] { emit moveRequested(direction); };
    connect(button, &QPushButton::clicked, this, move);
    connect(new QShortcut(key, this), &QShortcut::activated, this, move);
    return button;
}

QWidget* AlignmentPad::buildAxis(const QString& heading, QLineEdit*& box, const char* boxName,
                                 QAbstractButton* back, QAbstractButton* forth) {
    const auto [part, column] = look::part(this);
    QLabel* title = look::heading(heading, part);
    title->setAlignment(Qt::AlignHCenter);
    column->addWidget(title);
    box = new QLineEdit(part);
    look::name(*box, QLatin1String(boxName), heading);
    box->setReadOnly(true);
    box->setFocusPolicy(Qt::NoFocus);
    box->setFont(look::fixedFont());
    box->setAlignment(Qt::AlignCenter);
    box->setFixedWidth(box->fontMetrics().averageCharWidth() * kBoxCharacters);
    auto* row = new QHBoxLayout;
    row->setSpacing(look::kGap);
    row->addWidget(back, 1);
    row->addWidget(box);
    row->addWidget(forth, 1);
    column->addLayout(row);
    return part;
}

QWidget* AlignmentPad::buildLineOffset() {
    lines_ = new QComboBox(this);
    lines_->setObjectName(QStringLiteral("alinhamento.lines"));
    lines_->setEditable(true);
    lines_->setInsertPolicy(QComboBox::NoInsert);
    for (int lines = 0; lines <= kGreatestLineOffset; ++lines)
        lines_->addItem(toQt(lineOffsetText(lines)));
    lines_->setCompleter(nullptr);
    connect(lines_, &QComboBox::textActivated, this, &AlignmentPad::lineOffsetTyped);
    connect(lines_->lineEdit(), &QLineEdit::editingFinished, this, &AlignmentPad::finishTyping);
    const QString caption = QStringLiteral("Descer a impressão em &linhas:");
    look::name(*lines_->lineEdit(), QStringLiteral("alinhamento.linesText"), caption);
    return new Field(caption, lines_, this);
}

void AlignmentPad::finishTyping() {
    if (lines_->lineEdit()->isModified()) emit lineOffsetTyped(lines_->currentText());
}

void AlignmentPad::showOffsets(const Offsets& offsets) {
    horizontal_->setText(QString::number(offsets.horizontal));
    vertical_->setText(QString::number(offsets.vertical));
}

void AlignmentPad::showLineOffset(const QString& text) {
    const QSignalBlocker quiet(lines_);
    lines_->setCurrentIndex(lines_->findText(text));
    lines_->setEditText(text);
    lines_->lineEdit()->setModified(false);
}

}  // namespace winvrx
