#pragma once

#include "foundation/files/record_file.h"
#include "personnel/documents/paper_kinds.h"
#include "personnel/documents/paper_subject.h"

namespace winvrx {

/// The file whose presence bars the reactivation of who was given the paper: its dates and amounts
/// as they were recorded when it was printed. The subject has a termination and the paper a stem.
/// Throws TextFault.
[[nodiscard]] FileSystem::NewContent terminationFile(const Store& store, const EmployeeKey& key,
                                                     const PaperKind& kind,
                                                     const PaperSubject& subject);

}  // namespace winvrx
