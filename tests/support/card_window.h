#pragma once

#include "tests/support/employees.h"
#include "tests/support/test_punch_desk.h"
#include "tests/support/test_workplace.h"
#include "tests/support/window_driver.h"
#include "timecard/card/desktop/cartao_ponto_dados_window.h"
#include "timecard/card/desktop/punch_grid.h"
#include "timecard/month/selected_month.h"

#include <memory>
#include <string>

namespace winvrx::testing {

inline const std::string kPunches = "01001-03-2024.bdx";

/// The window over March 2024 with two employees.
struct CardWindow : ::testing::Test {
    TestWorkplace desk;
    TestPunchDesk asked;
    CartaoPontoDados command{desk.at, asked.desk};
    int monthOpened = 0;
    int leavesOpened = 0;
    std::unique_ptr<DrivenWindow<CartaoPontoDadosWindow>> driven;

    void SetUp() override {
        desk.file("01CartaPonto") =
            employeeList({employee("001", "ANA", {.admission = ""}),
                          employee("002", "JOSÉ", {.shift = "Dois", .admission = ""})});
        desk.file("01PadrHor001.pdx") = "08:0012:0013:0017:00";
        saveSelectedMonth(desk.store(), {*parseMonthKey("03-2024"), ShiftFilter::Todos});
    }

    void open() {
        ASSERT_TRUE(command.open());
        driven = std::make_unique<DrivenWindow<CartaoPontoDadosWindow>>(command);
        QObject::connect(&driven->window, &CartaoPontoDadosWindow::monthSettingsRequested,
                         &driven->window, [this] { ++monthOpened; });
        QObject::connect(&driven->window, &CartaoPontoDadosWindow::leavesRequested, &driven->window,
                         [this] { ++leavesOpened; });
    }

    [[nodiscard]] PunchGrid& grid(int half) {
        return driven->find<PunchGrid>(half == 1 ? "card.half1" : "card.half2");
    }
    [[nodiscard]] std::string cell(int half, int row, int column) {
        return grid(half).model()->index(row, column).data().toString().toStdString();
    }
    /// Types into the cell under the cursor and ends with `key`.
    void enter(const char* text, Qt::Key key = Qt::Key_Return) {
        driven->typeHere(text);
        driven->press(key);
    }
};

}  // namespace winvrx::testing
