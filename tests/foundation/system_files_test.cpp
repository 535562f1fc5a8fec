#include "foundation/faults.h"
#include "foundation/file_system.h"

#include <gtest/gtest.h>

#include <unistd.h>
#include <algorithm>
#include <fstream>

#ifndef _WIN32

namespace winvrx {
namespace {

namespace fs = std::filesystem;

class SystemFiles : public ::testing::Test {
  protected:
    SystemFiles() {
        std::string pattern = (fs::temp_directory_path() / "winvrx-XXXXXX").string();
        folder_ = ::mkdtemp(pattern.data());
    }
    ~SystemFiles() override { fs::remove_all(folder_); }

    [[nodiscard]] std::vector<std::string> sortedNames() const {
        auto names = files_->names(folder_);
        std::sort(names.begin(), names.end());
        return names;
    }

    std::unique_ptr<FileSystem> files_ = systemFiles();
    fs::path folder_;
};

TEST_F(SystemFiles, KeepsEveryByteAndLeavesNoTemporary) {
    std::string bytes;
    for (int i = 0; i < 200000; ++i)
        bytes.push_back(static_cast<char>(i % 256));
    files_->replace(folder_ / "a", "old");
    files_->replace(folder_ / "a", bytes);
    files_->replaceAll({{folder_ / "b", "1"}, {folder_ / "c", ""}});
    EXPECT_EQ(files_->read(folder_ / "a"), bytes);
    EXPECT_EQ(files_->read(folder_ / "c"), "");
    EXPECT_EQ(sortedNames(), (std::vector<std::string>{"a", "b", "c"}));
}

TEST_F(SystemFiles, MissingIsNoFault) {
    files_->replace(folder_ / "file", "x");
    for (const fs::path& file :
         {folder_ / "none", folder_ / "none" / "below", folder_ / "file" / "below"}) {
        EXPECT_EQ(files_->read(file), std::nullopt) << file;
        EXPECT_FALSE(files_->exists(file)) << file;
    }
    EXPECT_FALSE(files_->remove(folder_ / "none"));
    EXPECT_TRUE(files_->names(folder_ / "none").empty());
}

TEST_F(SystemFiles, AWriteThatFailsLeavesTheOldBytes) {
    files_->replace(folder_ / "list", "old");
    // The temporary's name is taken by a folder, so the new bytes cannot be written anywhere.
    fs::create_directory(folder_ / "list.winvrx-tmp");
    EXPECT_THROW(files_->replace(folder_ / "list", "new"), FileFault);
    EXPECT_EQ(files_->read(folder_ / "list"), "old");
}

TEST_F(SystemFiles, FaultsNameFileAndCause) {
    fs::create_directory(folder_ / "taken");
    files_->replace(folder_ / "file", "x");
    const auto explanation = [](auto&& operation) -> std::string {
        try {
            operation();
        } catch (const FileFault& fault) {
            return fault.explanation();
        }
        return "no fault";
    };
    EXPECT_EQ(explanation([&] { files_->replace(folder_ / "taken", "x"); }),
              "Não foi possível gravar \"taken\": há uma pasta com esse nome.");
    EXPECT_EQ(explanation([&] { (void)files_->read(folder_ / "taken"); }),
              "Não foi possível ler \"taken\": há uma pasta com esse nome.");
    EXPECT_EQ(explanation([&] { files_->replace(folder_ / "none" / "list", "x"); }),
              "Não foi possível gravar \"list\": a pasta não foi encontrada.");
    EXPECT_THROW((void)files_->remove(folder_ / "taken"), FileFault);
    EXPECT_THROW(files_->makeFolder(folder_ / "file" / "below"), FileFault);
    EXPECT_THROW(files_->replace(folder_ / "file" / "below", "x"), FileFault);
    EXPECT_EQ(sortedNames(), (std::vector<std::string>{"file"}));
}

TEST_F(SystemFiles, ALookUpThatFailsIsNotAMissingFile) {
    fs::create_symlink("loop", folder_ / "loop");
    EXPECT_THROW((void)files_->exists(folder_ / "loop"), FileFault);
    EXPECT_THROW((void)files_->read(folder_ / "loop"), FileFault);
}

TEST_F(SystemFiles, ListsFilesButNoFolders) {
    files_->makeFolder(folder_ / "WinvrxOfNew" / "deep");
    files_->makeFolder(folder_ / "WinvrxOfNew" / "deep");
    files_->replace(folder_ / "01Empresa", "x");
    EXPECT_EQ(sortedNames(), (std::vector<std::string>{"01Empresa"}));
}

}  // namespace
}  // namespace winvrx

#endif
