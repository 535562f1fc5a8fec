#pragma once

#include "foundation/files/data_folder.h"
#include "foundation/values/codes.h"

#include <array>
#include <optional>
#include <set>
#include <string>
#include <string_view>

// How the files of the data folder are named, and whose a file is by its name.

namespace winvrx {

/// Stems of the files that belong to a company or to one of its employees.
inline constexpr std::string_view kScheduleStem = "PadrHor";
inline constexpr std::string_view kOvertimeStem = "MedHorExtr";
inline constexpr std::string_view kLeaveStem = "configAf";
/// Stems of an employee's termination documents, which are named like his leave file.
inline constexpr std::array<std::string_view, 3> kTerminationStems = {"TRTC", "THRTC", "AviTRTC"};
/// Stem of an employee's contract of employment.
inline constexpr std::string_view kContractStem = "contrato";
/// Stem of what the payroll needs of an employee besides.
inline constexpr std::string_view kPayrollFactsStem = "FolhaDados";
/// The papers of the employees, in the data folder.
inline constexpr std::string_view kDocumentsSubfolder = "documentos";
/// Stem of what was typed for an employee's papers.
inline constexpr std::string_view kPaperInputsStem = "DadosDoc";
/// Stem of an employee's vacations.
inline constexpr std::string_view kVacationStem = "Ferias";
/// Stem of a company's rotation groups.
inline constexpr std::string_view kGroupStem = "GRUPO-";
/// Ends of the names of a company's list of payroll events and of an employee's own.
inline constexpr std::string_view kEventListStem = "confgger";
inline constexpr std::string_view kEmployeeEventListStem = "confgger2";
/// Stem of the mark of a transfer to another company that is under way.
inline constexpr std::string_view kTransferStem = "Transf";
inline constexpr std::string_view kEmployeeListStem = "CartaPonto";

/// Settings of one company, behind its code: card stock, how cards come out, trays and header,
/// the work-time tables of the rotations, how its payroll is computed, and the texts of its labels.
inline constexpr std::string_view kStockSettingName = "CartaoDePontoTipo";
inline constexpr std::string_view kPrinterKindName = "ImpressoraTipo";
inline constexpr std::string_view kFeedName = "Impresstec";
inline constexpr std::string_view kWorkTableName = "er.rdx";
inline constexpr std::string_view kPayrollSettingsName = "FolhaOpcoes";
inline constexpr std::string_view kLabelCatalogueName = "confgctps";
inline constexpr std::string_view kFormerLabelCatalogueName = "confgctpsBB";
inline constexpr std::array<std::string_view, 7> kCompanySettings = {
    kStockSettingName,   kPrinterKindName,         kFeedName, kWorkTableName, kPayrollSettingsName,
    kLabelCatalogueName, kFormerLabelCatalogueName};

/// Files of the run: both go when the program ends.
inline constexpr std::string_view kStartMemoryName = "LocMen.lvc";
inline constexpr std::string_view kSelectedMonthName = "DataIde.ivc";

/// The scratch database of the report engine: no record.
inline constexpr std::string_view kReportDatabaseName = "qdb.mdb";

/// True for the names of the files that go when the company goes: its schedules, overtime figures,
/// leaves, contracts, vacations, termination documents, payroll facts, punches, month files,
/// groups, employee list and settings. Names are read by position: company code in characters 1-2,
/// then the stem.
[[nodiscard]] bool isRecordOfCompany(std::string_view name, const CompanyCode& company);

/// The employee of the company to whom the record belongs; nullopt for a name that is no record of
/// an employee. The employee code stands behind the stem, or in characters 3-5.
[[nodiscard]] std::optional<EmployeeCode> employeeOfRecord(std::string_view name,
                                                           const CompanyCode& company);

[[nodiscard]] bool isRecordOfEmployee(std::string_view name, const EmployeeKey& key);

[[nodiscard]] bool isPayrollOfEmployee(std::string_view name, const EmployeeKey& key);

/// True for the employee's punch records: ".bdx" in characters 14-17 behind both codes.
[[nodiscard]] bool isPunchRecordOfEmployee(std::string_view name, const EmployeeKey& key);

/// The name that an employee's file takes when the employee moves to `company` under `employee`.
/// `name` must be a record of one employee.
[[nodiscard]] std::string renamedForEmployee(std::string_view name, const EmployeeKey& key);

/// Deletes the files of a company. Can be run again after a failure.
void removeRecordsOfCompany(const Store& store, const CompanyCode& company);
/// Only its settings, so that a company that gets the code of an earlier one does not begin with
/// those that an older version of the program left behind.
void removeSettingsOfCompany(const Store& store, const CompanyCode& company);
void removeRecordsOfEmployee(const Store& store, const EmployeeKey& key);
/// Those of all employees of a list, and the rotation groups that were made of them.
void removeRecordsOfList(const Store& store, const CompanyCode& company,
                         const std::set<EmployeeCode>& employees);

}  // namespace winvrx
