#include "foundation/widgets/desktop/look.h"

#include <QApplication>
#include <QListWidget>
#include <QTest>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace winvrx {
namespace {

/// The program's look for one test.
struct InTheLook : ::testing::Test {
    InTheLook() { look::apply(*qApp, look::lightPalette()); }
    ~InTheLook() override {
        qApp->setStyleSheet({});
        QApplication::setStyle(QStringLiteral("fusion"));
        QApplication::setPalette(QApplication::style()->standardPalette());
    }
};

/// A screen reader asks for a row's place as soon as the row is there.
TEST_F(InTheLook, RowsAskedForBeforeTheWindowIsShownKeepTheirHeight) {
    for (const bool asked : {false, true}) {
        QWidget window;
        auto* column = new QVBoxLayout(&window);
        auto* list = new QListWidget(&window);
        column->addWidget(list);
        for (int row = 0; row < 8; ++row) {
            list->addItem(QStringLiteral("%1 ANA PAULA\nTurno Um").arg(row));
            if (asked) (void)list->visualItemRect(list->item(row));
        }
        window.show();
        QCoreApplication::processEvents();
        for (int row = 0; row + 1 < list->count(); ++row)
            EXPECT_GT(list->visualItemRect(list->item(row + 1)).top(),
                      list->visualItemRect(list->item(row)).bottom())
                << row << (asked ? " asked" : "");
    }
}

}  // namespace
}  // namespace winvrx
