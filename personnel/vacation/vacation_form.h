#pragma once

#include "personnel/vacation/vacation_record.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace winvrx {

enum class VacationInput { First, Days, Last, Sold };
inline constexpr std::size_t kVacationInputs = 4;

/// What stands in the fields of the vacation screen. The last day follows from the first and the
/// days, and the days from both dates.
class VacationForm {
  public:
    VacationForm() = default;
    /// `days` are offered, those that are left.
    explicit VacationForm(int days);
    /// Filled from a vacation on record.
    explicit VacationForm(const VacationItem& item);

    [[nodiscard]] const std::string& text(VacationInput input) const {
        return texts_[static_cast<std::size_t>(input)];
    }
    void type(VacationInput input, std::string_view typed);
    [[nodiscard]] bool withThirteenth() const { return withThirteenth_; }
    void payThirteenth(bool with) { withThirteenth_ = with; }
    [[nodiscard]] bool isChanged() const {
        return texts_ != shown_ || withThirteenth_ != shownThirteenth_;
    }

    [[nodiscard]] std::optional<Date> first() const;
    [[nodiscard]] std::optional<Date> last() const;
    /// Of both dates; below one where they stand the wrong way round.
    [[nodiscard]] std::optional<int> days() const;
    /// None typed is none; nullopt for what is no number of days.
    [[nodiscard]] std::optional<int> sold() const;

  private:
    void put(VacationInput input, std::string text) {
        texts_[static_cast<std::size_t>(input)] = std::move(text);
    }
    void follow(VacationInput typed);

    std::array<std::string, kVacationInputs> texts_;
    std::array<std::string, kVacationInputs> shown_;  ///< before anything was typed
    bool withThirteenth_ = false;
    bool shownThirteenth_ = false;
};

}  // namespace winvrx
