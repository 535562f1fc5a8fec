#pragma once

#include "tests/support/commands/writing_commands.h"
#include "tests/support/scratch_folder.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

namespace winvrx::testing {

/// Makes `files` the whole content of the folder.
void fill(const std::filesystem::path& root, const FileTable& files);

/// Makes a file that leaves its disk room for so many bytes.
void fillDisk(const std::filesystem::path& file, std::size_t room);

/// Every file below the folder but locks.
[[nodiscard]] FileTable recordsBelow(const std::filesystem::path& root);

/// The writing command on this computer's disk.
bool runOnSystemDisk(const WritingCommand& command, const std::filesystem::path& root);

/// Starts the program again after a command was cut short, and gives the command again if it has
/// not ended.
void expectWholeAndRepeatable(const WritingCommand& command, const FileTable& after,
                              const std::filesystem::path& root);

/// What a process can be started to do: a writing command by its name, or what shared_folder.h has:
/// "begin counting", "count 0", "count 1", "is counted up", "keep folder", "is kept out",
/// "take over unasked".
bool doWork(const std::string& work, const std::filesystem::path& root);

/// A process that does a work and ends with 0, or with 1 when the work returns false or throws.
class OfficeProcess {
  public:
    /// The work has begun when this returns.
    OfficeProcess(const std::string& work, const std::filesystem::path& root);
    ~OfficeProcess();
    OfficeProcess(const OfficeProcess&) = delete;
    OfficeProcess& operator=(const OfficeProcess&) = delete;

    /// The exit status; -1 when it was killed.
    int wait();
    void kill();

  private:
    struct Handle;
    std::unique_ptr<Handle> handle_;
};

#ifndef _WIN32
/// The same for any work: the exit status, -1 when the process was killed.
int inOwnProcess(const std::function<bool()>& work);
#endif

}  // namespace winvrx::testing
