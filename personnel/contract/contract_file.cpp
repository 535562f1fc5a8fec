#include "personnel/contract/contract_file.h"

namespace winvrx {

std::string contractFileName(const EmployeeKey& key) {
    return key.company.text() + std::string(kContractStem) + key.employee.text();
}

bool hasContract(const Store& store, const EmployeeKey& key) {
    return store.files.exists(store.folder.file(contractFileName(key)));
}

bool hasContract(const FolderNames& names, const EmployeeKey& key) {
    return names.contains(contractFileName(key));
}

}  // namespace winvrx
