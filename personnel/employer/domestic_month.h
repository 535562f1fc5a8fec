#pragma once

#include "foundation/desk/command.h"
#include "personnel/payroll/statement_page.h"
#include "timecard/month/month_settings.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace winvrx {

inline constexpr std::string_view kGuideTitle = "Guia do Empregador Doméstico";

/// What the single monthly guide of a domestic employer has, of one employee or of all.
struct GuideAmounts {
    Money employeeInss;
    Money incomeTax;
    Money employerInss;  ///< 8%
    Money accident;      ///< 0,8%
    Money fgts;          ///< 8%
    Money reserve;       ///< 3,2%

    [[nodiscard]] Money total() const;
    GuideAmounts& operator+=(const GuideAmounts& other);
};

/// A figure of the guide as it is named.
struct GuideFigure {
    std::string_view name;
    Money GuideAmounts::*member;
};
inline constexpr GuideFigure kGuideFigures[] = {
    {"INSS do empregado", &GuideAmounts::employeeInss},
    {"IRRF", &GuideAmounts::incomeTax},
    {"INSS do empregador, 8%", &GuideAmounts::employerInss},
    {"Seguro contra acidentes, 0,8%", &GuideAmounts::accident},
    {"FGTS, 8%", &GuideAmounts::fgts},
    {"Reserva indenizatória, 3,2%", &GuideAmounts::reserve}};

struct GuideLine {
    std::string employee;  ///< code and name
    GuideAmounts amounts;
    Memo memo;
};

/// The guide of the selected company's month, from the payrolls that are recorded in it: the
/// month's, vacations and 13th. INSS and IRRF of a 13th are in the guide of its second instalment,
/// its FGTS in that of each.
class DomesticMonth {
  public:
    /// `legalFolder` has the delivered tables.
    DomesticMonth(const Workplace& at, std::filesystem::path legalFolder)
        : at_(at), legalFolder_(std::move(legalFolder)) {}

    /// Reads the month. False, and told, when the company is no domestic employer, has no work
    /// month or nothing recorded in it.
    [[nodiscard]] bool load();
    [[nodiscard]] WorkMonth month() const { return month_; }
    /// By when the guide is paid.
    [[nodiscard]] Date due() const;
    [[nodiscard]] const std::vector<GuideLine>& lines() const { return lines_; }
    [[nodiscard]] GuideAmounts total() const;
    /// Those without a recorded month, by name.
    [[nodiscard]] const std::vector<std::string>& unrecorded() const { return unrecorded_; }

    [[nodiscard]] Statement statement() const;
    [[nodiscard]] bool preview(ReportEngine& engine) const {
        return previewStatement({at_, engine}, statement());
    }

  private:
    void read();

    Workplace at_;
    std::filesystem::path legalFolder_;
    WorkMonth month_{};
    std::vector<GuideLine> lines_;
    std::vector<std::string> unrecorded_;
};

}  // namespace winvrx
