#include "foundation/widgets/desktop/look.h"

#include "foundation/widgets/desktop/elided_label.h"
#include "foundation/widgets/desktop/style.h"
#include "foundation/widgets/desktop/svg_icon.h"

#include <QApplication>
#include <QBoxLayout>
#include <QFontDatabase>
#include <QHeaderView>
#include <QLabel>
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

struct TintPair {
    QRgb light;
    QRgb dark;
};

constexpr int kFewestRows = 3;  ///< that a table shows

constexpr std::array<TintPair, 8> kTints = {{
    {0xFF0B6B6B, 0xFF5CC4BD},  // Accent
    {0xFFB3261E, 0xFFF2918A},  // Holiday
    {0xFF4A5A6A, 0xFFA9B8C8},  // RestDay
    {0xFF8A5200, 0xFFE9B25C},  // Leave
    {0xFF9E1B4A, 0xFFF28AAE},  // Absence
    {0xFF8F4A00, 0xFFF0AE6A},  // Warning
    {0xFF1B6E36, 0xFF7CCB92},  // Good
    {0xFF566366, 0xFFA3B0B2},  // Quiet
}};

QPalette paletteOf(QRgb window, QRgb base, QRgb alternate, QRgb text, QRgb border, QRgb button,
                   QRgb accent, QRgb onAccent) {
    QPalette palette{QColor(button), QColor(window)};
    const auto set = [&palette](QPalette::ColorRole role, QRgb value) {
        palette.setColor(role, QColor(value));
    };
    set(QPalette::Window, window);
    set(QPalette::Base, base);
    set(QPalette::AlternateBase, alternate);
    set(QPalette::WindowText, text);
    set(QPalette::Text, text);
    set(QPalette::ButtonText, text);
    set(QPalette::Button, button);
    set(QPalette::Mid, border);
    set(QPalette::ToolTipBase, base);
    set(QPalette::ToolTipText, text);
    set(QPalette::Highlight, accent);
    set(QPalette::HighlightedText, onAccent);
    set(QPalette::Link, accent);
    QColor faint(text);
    faint.setAlpha(130);
    palette.setColor(QPalette::PlaceholderText, color(Tint::Quiet, palette));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, faint);
    return palette;
}

/// One rule for each tint that a label may bear.
QString tintRules(const QPalette& palette) {
    QString rules;
    for (std::size_t tint = 0; tint < kTints.size(); ++tint)
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

qreal factorOf(TextSize size) {
    switch (size) {
        case TextSize::Title:
            return 1.5;
        case TextSize::Heading:
            return 1.1;
        case TextSize::Body:
            return 1.0;
        case TextSize::Hint:
            return 0.9;
    }
    return 1.0;
}

}  // namespace

bool isDark(const QPalette& palette) {
    return palette.window().color().lightness() < 128;
}

QColor color(Tint tint, const QPalette& palette) {
    const TintPair& pair = kTints[static_cast<std::size_t>(tint)];
    return QColor(isDark(palette) ? pair.dark : pair.light);
}

QColor wash(Tint tint, const QPalette& palette) {
    QColor wash = color(tint, palette);
    wash.setAlpha(isDark(palette) ? 48 : 28);
    return wash;
}

QPalette lightPalette() {
    return paletteOf(0xFFF2F5F5, 0xFFFFFFFF, 0xFFF5F8F8, 0xFF1B2425, 0xFFC6D0D1, 0xFFF7F9F9,
                     0xFF0B6B6B, 0xFFFFFFFF);
}

QPalette darkPalette() {
    return paletteOf(0xFF161B1C, 0xFF1F2627, 0xFF232B2C, 0xFFE7EDED, 0xFF435052, 0xFF2A3334,
                     0xFF2F8F8A, 0xFFFFFFFF);
}

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
    font.setPointSizeF(font.pointSizeF() * factorOf(size));
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

QIcon icon(const QString& name) {
    return QIcon(new SvgIconEngine(name, std::nullopt));
}

QIcon icon(const QString& name, Tint tint) {
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

void layOutBody(QBoxLayout& layout) {
    layout.setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout.setSpacing(kGap);
}

void layOutPart(QBoxLayout& layout) {
    layout.setContentsMargins(0, 0, 0, 0);
    layout.setSpacing(kGap);
}

}  // namespace winvrx::look
