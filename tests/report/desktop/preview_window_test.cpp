#include "report/desktop/preview_window.h"

#include "tests/support/desktop/print_server.h"
#include "tests/support/printed_text.h"
#include "tests/support/report_desk.h"

#include <QApplication>
#include <QLabel>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include <gtest/gtest.h>

#include <functional>

namespace winvrx::testing {
namespace {

class Preview : public ::testing::Test {
  protected:
    void SetUp() override { desk_.request.output = ReportOutput::Preview; }

    /// Works in the next preview window, and closes it with Esc.
    void work(std::function<void(PreviewWindow&)> steps) {
        QTimer::singleShot(0, qApp, [this, steps = std::move(steps)] {
            auto* window = qobject_cast<PreviewWindow*>(QApplication::activeModalWidget());
            ASSERT_NE(window, nullptr);
            shown_ = QTest::qWaitForWindowActive(window);
            steps(*window);
            if (window->isVisible()) QTest::keyClick(window, Qt::Key_Escape);
        });
    }

    PrintEnd preview(int cards, std::function<void(PreviewWindow&)> steps) {
        shown_ = false;
        work(std::move(steps));
        const PrintEnd end = desk_.print(cards);
        QCoreApplication::processEvents();
        EXPECT_TRUE(shown_);
        return end;
    }

    static QString stateOf(const PreviewWindow& window) {
        return window.findChild<QLabel*>(QStringLiteral("state"))->text();
    }

    static QImage pageOf(const PreviewWindow& window) {
        return window.findChild<QWidget*>(QStringLiteral("preview.page"))->grab().toImage();
    }

    ReportDesk desk_;
    bool shown_ = false;
};

TEST_F(Preview, TurnsPagesWithTheKeys) {
    EXPECT_EQ(preview(48,
                      [](PreviewWindow& window) {
                          const QImage first = pageOf(window);
                          const std::pair<Qt::Key, const char*> keys[] = {
                              {Qt::Key_PageUp, "1 de 48"},   {Qt::Key_PageDown, "2 de 48"},
                              {Qt::Key_PageDown, "3 de 48"}, {Qt::Key_PageUp, "2 de 48"},
                              {Qt::Key_End, "48 de 48"},     {Qt::Key_PageDown, "48 de 48"}};
                          for (const auto& [key, state] : keys) {
                              QTest::keyClick(&window, key);
                              EXPECT_EQ(stateOf(window), QLatin1String(state));
                          }
                          EXPECT_NE(pageOf(window), first);
                          QTest::keyClick(&window, Qt::Key_Home);
                          EXPECT_EQ(pageOf(window), first);
                      }),
              PrintEnd::Done);
}

TEST_F(Preview, ShowsACardOfTwoSidesInTwoPages) {
    desk_.request.layoutName = "madiscenter.rpt";
    (void)preview(2, [](PreviewWindow& window) {
        EXPECT_EQ(stateOf(window), QStringLiteral("1 de 2, frente"));
        const auto front = pageOf(window);
        for (const char* state : {"1 de 2, verso", "2 de 2, frente", "2 de 2, verso"}) {
            QTest::keyClick(&window, Qt::Key_PageDown);
            EXPECT_EQ(stateOf(window), QLatin1String(state));
            EXPECT_NE(pageOf(window), front);
        }
    });
}

TEST_F(Preview, NeedsACard) {
    EXPECT_EQ(desk_.print(0), PrintEnd::Done);
}

TEST_F(Preview, ShowsTheStockWhereItLies) {
    desk_.writeLayout("own.rpt",
                      R"(<svg width="100mm" height="80mm" viewBox="0 0 100 80" data-pitch="4">
                         <g data-block="stock">
                         <rect x="10" y="10" width="10" height="10" fill="#ff0000"/></g>
                         <rect x="10" y="40" width="10" height="10" fill="#000000"/></svg>)");
    desk_.request.layoutName = "own.rpt";
    const auto colourAt = [](const QImage& page, double x, double y) {
        const double dotsPerMillimetre = page.width() / 100.0;
        return page.pixelColor(qRound(x * dotsPerMillimetre), qRound(y * dotsPerMillimetre));
    };
    for (const auto& [twips, shift] : {std::pair{0, 0.0}, std::pair{1440, 25.4}}) {
        desk_.request.alignment = {twips, 0, 0};
        QImage page;
        (void)preview(1, [&](PreviewWindow& window) { page = pageOf(window); });
        EXPECT_EQ(colourAt(page, 15, 15), QColor(Qt::red));
        EXPECT_EQ(colourAt(page, 15 + shift, 45), QColor(Qt::black));
        EXPECT_EQ(colourAt(page, shift > 0 ? 15 : 40, 45), QColor(Qt::white));
    }
}

TEST_F(Preview, ZoomsFromTheWholeSheetToItsLetters) {
    (void)preview(1, [](PreviewWindow& window) {
        const auto* page = window.findChild<QWidget*>(QStringLiteral("preview.page"));
        const int real = page->width();
        QTest::keyClick(&window, Qt::Key_0, Qt::ControlModifier);
        EXPECT_LT(page->height(), window.height());
        for (int i = 0; i < 50; ++i)
            window.findChild<QToolButton*>(QStringLiteral("preview.zoomIn"))->click();
        EXPECT_NEAR(page->width(), real * 5, 5);
    });
}

TEST_F(Preview, SavesAllPagesAndSaysSo) {
    if (!canReadPdf()) GTEST_SKIP() << "pdftotext (poppler-utils) is not installed";
    (void)preview(3, [this](PreviewWindow& window) {
        emit window.pdfRequested(desk_.pdf());
        EXPECT_TRUE(stateOf(window).contains(desk_.pdf())) << stateOf(window).toStdString();
        EXPECT_EQ(wordOf(printedWords(desk_.pdf()), QStringLiteral("3")).page, 3);
        emit window.pdfRequested(QStringLiteral("/missing/cards.pdf"));
        EXPECT_TRUE(stateOf(window).contains(QStringLiteral("⚠")));
        EXPECT_TRUE(window.isVisible());
    });
}

TEST_F(Preview, AFailedPrintClosesItAndIsToldOnce) {
    for (const char* layout : {"tilibcenter.rpt", "dimepcenter.rpt"}) {
        desk_.request.layoutName = layout;
        EXPECT_EQ(preview(2,
                          [](PreviewWindow& window) {
                              QTest::keyClick(&window, Qt::Key_P, Qt::ControlModifier);
                              EXPECT_FALSE(window.isVisible());
                          }),
                  PrintEnd::Failed);
        EXPECT_EQ(desk_.office.person.takeTexts().size(), 1U) << layout;
    }
}

TEST_F(Preview, SaysWhatBecameOfThePrint) {
    desk_.request.layoutName = "dimepcenter.rpt";
    PrintEnd answer = PrintEnd::Done;
    int asked = 0;
    ReportPages cards(2, sampleCard);
    const auto printShown = [&](ReportPages& shown, const PageProgress& progress) {
        ++asked;
        EXPECT_EQ(shown.count(), 2U);
        EXPECT_EQ(shown.next(), sampleCard(0));
        EXPECT_TRUE(progress(1, 4));
        return answer;
    };
    work([&](PreviewWindow& window) {
        QTest::keyClick(&window, Qt::Key_P, Qt::ControlModifier);
        EXPECT_EQ(stateOf(window),
                  QStringLiteral("1 de 2, frente · Enviado à impressora: 2 cartões"));
        answer = PrintEnd::Cancelled;
        QTest::keyClick(&window, Qt::Key_P, Qt::ControlModifier);
        EXPECT_EQ(stateOf(window), QStringLiteral("1 de 2, frente · Impressão cancelada"));
        EXPECT_TRUE(window.isVisible());
    });
    EXPECT_EQ(desk_.engine.preview(
                  desk_.request, cards, [](int, int) { return true; }, printShown),
              PrintEnd::Done);
    EXPECT_EQ(asked, 2);
}

}  // namespace
}  // namespace winvrx::testing
