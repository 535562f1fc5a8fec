#include "foundation/widgets/desktop/look.h"

#include "foundation/widgets/desktop/elided_label.h"
#include "foundation/widgets/desktop/style.h"
#include "foundation/widgets/desktop/svg_icon.h"

#include <QApplication>
#include <QBoxLayout>
#include <QFontDatabase>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QStyle>
#include <QTreeWidget>

#include <array>

// The icons lie in a static library, which nothing else draws into the program. The macro works
// only outside of namespaces.
static void loadIcons() {
    Q_INIT_RESOURCE(winvrx);
}

namespace winvrx::look {

namespace {

constexpr int kFewestRows = 3;  ///< that a table shows

/// One rule for each tint that a label may bear.
QString tintRules(const QPalette& palette) {
    QString rules;
    for (std::size_t tint = 0; tint < kTintCount; ++tint)
        rules += QStringLiteral("QLabel[tint=\"%1\"]:enabled { color: %2; }\n")
                     .arg(tint)
                     .arg(color(static_cast<Tint>(tint), palette).name());
    return rules;
}

/// Only what the program's own widgets need; fields and buttons are drawn by the style.
QString styleSheet(const QPalette& palette) {
    const auto name = [](const QColor& value) { return value.name(QColor::HexArgb); };
    const QString sheet = QStringLiteral(R"(
#titleBand { background: %1; border-bottom: 1px solid %2; }
#titleMark { background: %3; border-radius: 2px; }
#stateBar { background: %1; border-top: 1px solid %2; }
#commandBar { border-bottom: 1px solid %2; }
*[role="chip"] { background: %4; border-radius: 10px; padding: 2px 10px; }
*[role="panel"] { background: %1; border: 1px solid %2; border-radius: 8px; }
*[role="command"] { border: 1px solid transparent; border-radius: 6px; padding: 4px 8px; }
*[role="command"]:hover:enabled { background: %4; }
*[role="command"]:focus { border-color: %3; }
QListView::item { padding: 5px 4px; border-radius: 4px; }
QListView::item:selected { background: palette(highlight); color: palette(highlighted-text); }
QToolTip { border: 1px solid %2; padding: 4px; }
)");
    return tintRules(palette) + sheet.arg(name(palette.base().color()), name(palette.mid().color()),
                                          name(color(Tint::Accent, palette)),
                                          name(wash(Tint::Accent, palette)));
}

/// Of the usual letters, in the order of TextSize.
constexpr std::array kFactors = {1.5, 1.1, 1.0, 0.9};

}  // namespace

void apply(QApplication& application) {
    apply(application, isDark(QApplication::palette()) ? darkPalette() : lightPalette());
}

void apply(QApplication& application, const QPalette& palette) {
    loadIcons();
    QApplication::setStyle(new Style);
    QApplication::setPalette(palette);
    application.setStyleSheet(styleSheet(palette));
}

void setRole(QWidget& widget, const char* role) {
    widget.setProperty("role", QString::fromLatin1(role));
}

QFont font(TextSize size) {
    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() * kFactors.at(static_cast<std::size_t>(size)));
    if (size == TextSize::Title || size == TextSize::Heading) font.setWeight(QFont::DemiBold);
    return font;
}

QFont fixedFont() {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSizeF(QApplication::font().pointSizeF());
    return font;
}

void setTint(QLabel& label, Tint tint) {
    const int value = static_cast<int>(tint);
    if (label.property("tint") == value) return;
    label.setProperty("tint", value);
    label.style()->unpolish(&label);
    label.style()->polish(&label);
}

QFont reportFont() {
    QFont font(QStringLiteral("Courier New"), 10);
    font.setStyleHint(QFont::Monospace);
    return font;
}

QLabel* label(const QString& text, TextSize size, QWidget* parent) {
    auto* label = new ElidedLabel(text, parent);
    label->setFont(font(size));
    if (size == TextSize::Hint) setTint(*label, Tint::Quiet);
    return label;
}

QLabel* heading(const QString& text, QWidget* parent) {
    return label(text, TextSize::Heading, parent);
}

QLabel* line(const QString& objectName, TextSize size, QWidget* parent) {
    QLabel* line = label(QString(), size, parent);
    line->setObjectName(objectName);
    return line;
}

QLabel* paragraph(const QString& objectName, TextSize size, QWidget* parent) {
    QLabel* paragraph = line(objectName, size, parent);
    paragraph->setWordWrap(true);
    return paragraph;
}

void showText(QLabel& label, const QString& text) {
    label.setText(text);
    label.setVisible(!text.isEmpty());
}

void showWarning(QLabel& label, const QString& text) {
    showText(label, text.isEmpty() ? text : QStringLiteral("⚠ ") + text);
}

void showUnread(QLabel& label, const QStringList& lines, const QString& single) {
    label.setToolTip(tipOf(lines.join(QLatin1Char('\n'))));
    if (lines.size() < 2)
        return showWarning(label, lines.isEmpty() ? QString() : single + lines[0]);
    showWarning(label, QStringLiteral("%1 linhas não entendidas, mantidas no registro: %2 …")
                           .arg(lines.size())
                           .arg(lines[0]));
}

QHBoxLayout* captioned(const QString& caption, QWidget* input) {
    QLabel* words = label(caption, TextSize::Body, input->parentWidget());
    words->setBuddy(input);
    auto* row = new QHBoxLayout;
    layOutPart(*row);
    row->addWidget(words);
    row->addWidget(input, 1);
    return row;
}

QPushButton* button(const QString& text, const QString& objectName, QWidget* parent) {
    auto* button = new QPushButton(text, parent);
    name(*button, objectName, text);
    button->setAutoDefault(false);
    return button;
}

QIcon icon(const QString& name, std::optional<Tint> tint) {
    return QIcon(new SvgIconEngine(name, tint));
}

void name(QWidget& widget, const QString& objectName, const QString& spoken) {
    widget.setObjectName(objectName);
    widget.setAccessibleName(QString(spoken).remove(QLatin1Char('&')));
}

QTreeWidget* table(const QString& objectName, const QString& spoken, const QStringList& headings,
                   QWidget* parent) {
    auto* table = new QTreeWidget(parent);
    name(*table, objectName, spoken);
    table->setHeaderLabels(headings);
    table->setMinimumSize(1, kFewestRows * table->fontMetrics().height());
    table->setRootIsDecorated(false);
    table->setUniformRowHeights(true);
    table->setAlternatingRowColors(true);
    table->setAllColumnsShowFocus(true);
    table->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table->header()->setStretchLastSection(false);
    return table;
}

QScrollArea* scrolled(QWidget* content, QWidget* parent) {
    auto* area = new QScrollArea(parent);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(content);
    return area;
}

Part body(QWidget* parent) {
    auto* widget = new QWidget(parent);
    auto* column = new QVBoxLayout(widget);
    layOutBody(*column);
    return {widget, column};
}

Part part(QWidget* parent) {
    auto* widget = new QWidget(parent);
    auto* column = new QVBoxLayout(widget);
    layOutPart(*column);
    return {widget, column};
}

QGridLayout* fieldGrid(int columns) {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(kGap);
    grid->setVerticalSpacing(kSmallGap / 2);
    for (int column = 0; column < columns; ++column)
        grid->setColumnStretch(column, 1);
    return grid;
}

void layOutBody(QBoxLayout& layout) {
    layout.setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout.setSpacing(kGap);
}

void layOutPart(QBoxLayout& layout) {
    layout.setContentsMargins(0, 0, 0, 0);
    layout.setSpacing(kGap);
}

}  // namespace winvrx::look
