#pragma once

#include "foundation/files/data_folder.h"
#include "foundation/register/company.h"
#include "foundation/register/employee.h"
#include "foundation/register/leave_record.h"
#include "timecard/schedule/standard_schedule.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace winvrx {

/// A line of what is paid at the end of a contract, amounts as they are printed.
struct PaidItem {
    std::string words;
    std::string quantity = {};
    std::string credit = {};
    std::string debit = {};
};

/// What is paid at the end of a contract.
struct FinalAccount {
    std::vector<PaidItem> items = {};
    std::string credits = {};
    std::string debits = {};
    std::string net = {};
    std::string remark = {};  ///< why the amounts are not known
};

/// What the records say of the employee whom a paper is about.
struct PaperSubject {
    Company company;
    Employee employee;
    Date today;
    WorkMonth month;          ///< the one selected, else today's
    bool isDomestic = false;  ///< by the payroll's settings, or an employer with a CPF
    std::optional<DaySchedule> schedule = {};
    std::optional<Leave> termination = {};  ///< the last one on record
    FinalAccount account = {};              ///< of a termination, once it is loaded
};

/// Throws FileFault, and Fault when the company has no line.
[[nodiscard]] PaperSubject loadSubject(const Store& store, const EmployeeKey& key,
                                       const Employee& employee, Date today);

/// The termination's figures; where they cannot be computed, the usual items with nothing beside
/// them, to be written in by hand. `legalFolder` has the delivered tables. Throws FileFault.
[[nodiscard]] FinalAccount loadAccount(const Store& store, const std::filesystem::path& legalFolder,
                                       const CompanyCode& company, const Employee& employee);

/// What an input offers before anything is remembered: worked out from the records and from the
/// law; empty where they say nothing. Dates of a recorded termination go before reckoned ones.
[[nodiscard]] std::string offeredText(const PaperSubject& subject, std::string_view input);

}  // namespace winvrx
