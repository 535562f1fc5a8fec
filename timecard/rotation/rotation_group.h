#pragma once

#include "foundation/files/folder_names.h"
#include "foundation/files/line_file.h"
#include "foundation/register/company.h"
#include "foundation/values/date.h"
#include "foundation/values/shift.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The groups of a rotation. A company's groups of a work month are the lines of one file,
// "01GRUPO-032024.rdx".

namespace winvrx {

/// Places of a list: days after the first day off on which its employees are off.
inline constexpr std::size_t kMostPlaces = 6;
inline constexpr std::size_t kMostReliefWorkers = 2;

/// "Funcionário Folguista".
struct ReliefWorker {
    EmployeeCode employee;
    std::optional<Date> firstDayOff = {};

    [[nodiscard]] bool operator==(const ReliefWorker&) const = default;
};

struct RotationGroup {
    int number = 1;
    Shift shift = Shift::Unico;
    Scale scale = Scale::FiveByOne;
    std::optional<Date> firstDayOff = {};  ///< of the first place
    /// A place that somebody left is kept vacant, so that the others keep their days off.
    std::vector<std::optional<EmployeeCode>> places = {};
    std::vector<ReliefWorker> relief = {};

    [[nodiscard]] bool operator==(const RotationGroup&) const = default;

    /// Those of the list in its order, then the relief workers.
    [[nodiscard]] std::vector<EmployeeCode> members() const;
    [[nodiscard]] std::size_t listed() const;  ///< places that are taken
    [[nodiscard]] bool contains(const EmployeeCode& employee) const;
    /// Takes the employee off the list, or from among the relief workers.
    void remove(const EmployeeCode& employee);
    /// A list ends with a place that is taken.
    void dropVacantEnd();
};

/// "GRUPO-001".
[[nodiscard]] std::string groupName(int number);
inline constexpr int kHighestGroup = 999;
/// "5 x 1".
[[nodiscard]] std::string_view scaleTitle(Scale rotation);
/// "GRUPO-001  5 x 1  Um  3 funcionários".
[[nodiscard]] std::string titleOf(const RotationGroup& group);

/// The employees that a list of the shift has room for: three in "Um" and "Tres", else six.
[[nodiscard]] std::size_t mostPlacesOf(Shift shift);

/// A group as its line has it.
struct GroupRecord {
    std::string name;
    std::string shift;
    std::string scale;
    std::string firstDayOff;
    std::string relief;
    std::string reliefDayOff;
    std::string secondRelief;
    std::string secondReliefDayOff;
    std::string place1;
    std::string place2;
    std::string place3;
    std::string place4;
    std::string place5;
    std::string place6;

    [[nodiscard]] bool operator==(const GroupRecord&) const = default;
};

using GroupField = RecordField<GroupRecord>;

/// The layout of a line. The one place that knows it; docs/record-layouts.md shows it.
inline constexpr std::array kGroupFields = {
    GroupField{&GroupRecord::name, {1, 9}, "Grupo"},
    GroupField{&GroupRecord::shift, {11, 5}, "Turno"},
    GroupField{&GroupRecord::scale, {17, 5}, "Escala"},
    GroupField{&GroupRecord::firstDayOff, {23, 10}, "Primeira folga"},
    GroupField{&GroupRecord::relief, {34, 3}, "Folguista"},
    GroupField{&GroupRecord::reliefDayOff, {38, 10}, "Primeira folga do folguista"},
    GroupField{&GroupRecord::secondRelief, {49, 3}, "Segundo folguista"},
    GroupField{&GroupRecord::secondReliefDayOff, {53, 10}, "Primeira folga do segundo"},
    GroupField{&GroupRecord::place1, {64, 3}, "1"},
    GroupField{&GroupRecord::place2, {68, 3}, "2"},
    GroupField{&GroupRecord::place3, {72, 3}, "3"},
    GroupField{&GroupRecord::place4, {76, 3}, "4"},
    GroupField{&GroupRecord::place5, {80, 3}, "5"},
    GroupField{&GroupRecord::place6, {84, 3}, "6"},
};

inline constexpr std::size_t kGroupWidth = 86;

template <>
struct RecordLayout<GroupRecord> : LineLayout<kGroupFields, kGroupWidth> {};

using GroupLine = StoredLine<GroupRecord>;
using GroupLines = std::vector<GroupLine>;

[[nodiscard]] GroupRecord recordOf(const RotationGroup& group);
/// nullopt for a line that is not understood. One on record has its first day off.
[[nodiscard]] std::optional<RotationGroup> groupOf(const GroupRecord& record);
/// The group's number.
[[nodiscard]] std::optional<int> keyOf(const GroupRecord& record);

/// "GRUPO-032024.rdx", to be put behind the company code.
[[nodiscard]] std::string groupFileName(WorkMonth month);
/// The months of which a company has a file of groups among these names, in no particular order.
[[nodiscard]] std::vector<WorkMonth> monthsWithGroups(const FolderNames& names,
                                                      const CompanyCode& company);
[[nodiscard]] LineFile<GroupRecord> groupFile(const Store& store, const CompanyCode& company,
                                              WorkMonth month);
/// The groups among the lines; of two with one number the first.
[[nodiscard]] std::vector<RotationGroup> groupsIn(const GroupLines& lines);
/// Those of a company's month on record. Throws FileFault.
[[nodiscard]] std::vector<RotationGroup> groupsOf(const Store& store, const CompanyCode& company,
                                                  WorkMonth month);

}  // namespace winvrx
