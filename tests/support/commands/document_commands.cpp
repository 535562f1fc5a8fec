// What the documents screen writes.
#include "foundation/register/leave_file.h"
#include "personnel/documents/documentos.h"
#include "personnel/leaves/leave_form.h"
#include "personnel/leaves/leave_types.h"
#include "tests/support/commands/writing_commands.h"
#include "tests/support/recording_word_processor.h"

namespace winvrx::testing {

namespace {

/// The second employee with a contract, a recorded termination, and an office's own texts.
FileTable officeWithPapers() {
    FileTable files = filledOffice();
    LeaveForm form(parseDate("05/03/2018"));
    form.type(LeaveInput::Type, kLeaveTypes[7]);
    form.type(LeaveInput::FirstDay, "15/03/2024");
    form.type(LeaveInput::TerminationType, kTerminationTypes[0]);
    form.type(LeaveInput::NoticeType, kNoticeTypes[1]);
    files[inDataFolder("01configAf002")] = encode(LeaveFile{.leaves = {leaveLine(form.leave())}});
    files[inDataFolder("01contrato002")] = "contrato\r\n";
    files[inDataFolder("documentos/modelos/aviso-previo.txt")] = "= AVISO\n{nome} {fundamento}\n";
    return files;
}

bool printNotice(const Workplace& at, const Drives&) {
    RecordingWordProcessor writer;
    Documentos screen(
        at, {writer, [&at] { return templateFolders(at.session.folder, "/none"); }, "/none"});
    screen.load();
    if (!screen.select(1)) return false;
    screen.type("fundamento", "Fatos");
    return screen.print();
}

}  // namespace

std::vector<WritingCommand> documentCommands() {
    return {{"print notice", officeWithPapers(), printNotice}};
}

}  // namespace winvrx::testing
