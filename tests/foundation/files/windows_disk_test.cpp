#ifdef _WIN32

#include "foundation/files/file_faults.h"
#include "foundation/files/file_system.h"
#include "tests/support/real_office.h"

#include <gmock/gmock.h>

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include <windows.h>

namespace winvrx {
namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;

constexpr DWORD kPause = 300;  // milliseconds, less than a write is tried again

/// Opens a file so that nobody else may, as a backup program does, until it is destroyed.
class Holder {
  public:
    explicit Holder(const fs::path& file)
        : handle_(
              ::CreateFileW(file.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr)) {
        EXPECT_NE(handle_, INVALID_HANDLE_VALUE);
    }
    ~Holder() { ::CloseHandle(handle_); }
    Holder(const Holder&) = delete;
    Holder& operator=(const Holder&) = delete;

  private:
    HANDLE handle_;
};

class WindowsFiles : public ::testing::Test {
  protected:
    WindowsFiles() { files_->replace(file_, "old"); }

    /// What is said of the operation.
    std::string told(const std::function<void()>& operation) {
        try {
            operation();
        } catch (const FileFault& fault) {
            return fault.explanation();
        }
        return "no fault";
    }

    testing::ScratchFolder scratch_;
    const fs::path file_ = scratch_.path() / "list";
    std::unique_ptr<FileSystem> files_ = systemFiles();
};

TEST_F(WindowsFiles, WhatCannotBeReplacedIsToldAndStays) {
    ::SetFileAttributesW(file_.c_str(), FILE_ATTRIBUTE_READONLY);
    fs::create_directory(scratch_.path() / "taken");
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(told([&] { files_->replace(file_, "new"); }),
              "Não foi possível gravar \"list\": não há permissão de gravação ou leitura.");
    EXPECT_EQ(told([&] { files_->replace(scratch_.path() / "taken", "new"); }),
              "Não foi possível gravar \"taken\": há uma pasta com esse nome.");
    EXPECT_EQ(told([&] { (void)files_->read(scratch_.path() / "taken"); }),
              "Não foi possível ler \"taken\": há uma pasta com esse nome.");
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1)) << "no wait";
    EXPECT_EQ(files_->read(file_), "old");
    EXPECT_EQ(files_->names(scratch_.path()), std::vector<std::string>{"list"});
    ::SetFileAttributesW(file_.c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(WindowsFiles, AFileThatAnotherProgramHoldsIsWaitedForAndThenTold) {
    const char* const cause = "\"list\": outro programa está usando o arquivo.";
    {
        const Holder holder(file_);
        EXPECT_THAT(told([&] { (void)files_->read(file_); }), HasSubstr(cause));
        EXPECT_THAT(told([&] { files_->replace(file_, "new"); }), HasSubstr("Não foi possível"));
    }
    EXPECT_EQ(files_->read(file_), "old");
    auto holder = std::make_unique<Holder>(file_);
    std::thread other([&] {
        ::Sleep(kPause);
        holder.reset();
    });
    files_->replace(file_, "new");
    other.join();
    EXPECT_EQ(files_->read(file_), "new");
}

}  // namespace
}  // namespace winvrx

#endif
