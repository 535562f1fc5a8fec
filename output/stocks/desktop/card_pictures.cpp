#include "output/stocks/desktop/card_pictures.h"

#include "foundation/desk/log.h"
#include "foundation/values/desktop/qt_text.h"
#include "output/stocks/card_rows.h"
#include "report/desktop/layout_painter.h"
#include "report/desktop/layout_reader.h"

#include <QPainter>
#include <QPixmapCache>

namespace winvrx {

namespace {

/// Finer than the screen, then made smaller: thin rules and small letters keep their weight.
constexpr int kFineness = 3;

std::string layoutNameOf(const CardStock& stock, TrayPosition tray = TrayPosition::Central) {
    return layoutFor(stock.code, tray, LayoutSet::A).value_or(std::string());
}

QImage drawn(const Layout& layout, const QRectF& area, double dotsPerMillimetre) {
    const double scale = dotsPerMillimetre * kFineness / kLayoutUnitsPerMillimetre;
    QImage image((area.size() * scale).toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.scale(scale, scale);
    painter.translate(-area.topLeft());
    LayoutPainter(layout, {.header = false, .stock = true, .alignment = {}}).paint(painter, {});
    painter.end();
    return image.scaled(image.size() / kFineness, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

}  // namespace

CardPictures::CardPictures(Folders folders, Log& log) : folders_(std::move(folders)), log_(log) {}

QPixmap CardPictures::card(const CardStock& stock, const Scale& scale) {
    return picture(layoutNameOf(stock), false, scale);
}

QPixmap CardPictures::sheet(const CardStock& stock, TrayPosition tray, const Scale& scale) {
    return picture(layoutNameOf(stock, tray), true, scale);
}

QString CardPictures::description(const CardStock& stock) {
    const Loaded& loaded = load(layoutNameOf(stock));
    return loaded.layout ? loaded.layout->description : QString();
}

QString CardPictures::fault(const CardStock& stock) {
    for (const LayoutSet set : {LayoutSet::A, LayoutSet::B})
        for (const TrayPosition tray : {TrayPosition::Central, TrayPosition::Lateral})
            if (const auto name = layoutFor(stock.code, tray, set))
                if (const QString fault = load(*name).fault; !fault.isEmpty()) return fault;
    return {};
}

const CardPictures::Loaded& CardPictures::load(const std::string& name) {
    const auto [entry, isNew] = loaded_.try_emplace(name);
    Loaded& loaded = entry->second;
    if (!isNew) return loaded;
    try {
        loaded.layout = loadLayout(folders_(), name, cardColumns());
    } catch (const LayoutFault& fault) {
        log_.write(std::string("card picture: ") + fault.what());
        loaded.fault = toQt(fault.explanation());
    }
    return loaded;
}

QPixmap CardPictures::picture(const std::string& name, bool wholeSheet, const Scale& scale) {
    const QString key = keyOf(name, wholeSheet, scale);
    QPixmap picture;
    if (QPixmapCache::find(key, &picture)) return picture;
    const Loaded& loaded = load(name);
    if (!loaded.layout) return {};
    const QRectF sheet(QPointF(), loaded.layout->page * kLayoutUnitsPerMillimetre);
    picture =
        QPixmap::fromImage(drawn(*loaded.layout, wholeSheet ? sheet : cardArea(*loaded.layout),
                                 scale.pixelsPerMillimetre * scale.pixelRatio));
    picture.setDevicePixelRatio(scale.pixelRatio);
    QPixmapCache::insert(key, picture);
    return picture;
}

/// File, its time and how it is drawn.
QString CardPictures::keyOf(const std::string& name, bool wholeSheet, const Scale& scale) const {
    const auto file = findLayout(folders_(), name);
    if (!file) return QStringLiteral("no card ") + toQt(name);
    std::error_code error;
    const auto time = std::filesystem::last_write_time(*file, error).time_since_epoch().count();
    return QStringLiteral("card %1 %2 %3 %4 %5")
        .arg(toQt(file->string()))
        .arg(time)
        .arg(wholeSheet)
        .arg(scale.pixelsPerMillimetre)
        .arg(scale.pixelRatio);
}

}  // namespace winvrx
