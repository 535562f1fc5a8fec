#include "foundation/files/file_faults.h"
#include "foundation/files/file_system.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
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

template <typename Operation>
std::string explanation(Operation&& operation) {
    try {
        operation();
    } catch (const FileFault& fault) {
        return fault.explanation();
    }
    return "no fault";
}

TEST_F(SystemFiles, FaultsNameFileAndCause) {
    fs::create_directory(folder_ / "taken");
    files_->replace(folder_ / "file", "x");
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

TEST_F(SystemFiles, FaultsNameFoldersToo) {
    const std::pair<fs::path, const char*> cases[] = {
        {"/a/Winvrx", "Winvrx"}, {"/a/Winvrx/", "Winvrx"}, {"/", "/"}, {"", "a pasta de dados"}};
    for (const auto& [folder, name] : cases)
        EXPECT_EQ(
            FileFault(FileFault::Operation::List, folder, std::make_error_code(std::errc::io_error))
                .explanation(),
            std::string("Não foi possível listar \"") + name + "\": o disco não respondeu.");
}

TEST_F(SystemFiles, ALookUpThatFailsIsNotAMissingFile) {
    fs::create_symlink("loop", folder_ / "loop");
    EXPECT_THROW((void)files_->exists(folder_ / "loop" / "list"), FileFault);
    EXPECT_THROW((void)files_->read(folder_ / "loop" / "list"), FileFault);
}

/// None of these may be followed, waited for, or turned into a plain file.
TEST_F(SystemFiles, WhatIsNoPlainFileIsNeitherReadNorReplaced) {
    const fs::path outside = folder_ / "outside";
    const fs::path data = folder_ / "data";
    fs::create_directory(data);
    files_->replace(outside, "not ours");
    fs::create_symlink(outside, data / "link");
    fs::create_symlink("nowhere", data / "dangling link");
    fs::create_symlink("link in a loop", data / "link in a loop");
    fs::create_symlink("/dev/zero", data / "link to a device");
    ASSERT_EQ(::mkfifo((data / "pipe").c_str(), 0600), 0);
    struct Case {
        const char* name;
        const char* cause;
    };
    const char* const link = "há um atalho (link) no lugar do arquivo";
    for (const Case& c :
         {Case{"link", link}, Case{"dangling link", link}, Case{"link in a loop", link},
          Case{"link to a device", link}, Case{"pipe", "há um dispositivo no lugar do arquivo"}}) {
        const fs::path file = data / c.name;
        const auto type = fs::symlink_status(file).type();
        const auto said = [&](const char* operation) {
            return std::string("Não foi possível ") + operation + " \"" + c.name +
                   "\": " + c.cause + ".";
        };
        EXPECT_TRUE(files_->exists(file)) << c.name;
        EXPECT_EQ(explanation([&] { (void)files_->read(file); }), said("ler"));
        EXPECT_EQ(explanation([&] { files_->replace(file, "x"); }), said("gravar"));
        EXPECT_EQ(fs::symlink_status(file).type(), type) << c.name;
    }
    EXPECT_EQ(files_->read(outside), "not ours");
    EXPECT_TRUE(files_->remove(data / "link"));
    EXPECT_EQ(files_->read(outside), "not ours");
    EXPECT_EQ(files_->names(data).size(), 4U);
}

TEST_F(SystemFiles, ATemporaryThatIsNoPlainFileIsNotWrittenTo) {
    files_->replace(folder_ / "list", "old");
    files_->replace(folder_ / "outside", "not ours");
    ASSERT_EQ(::mkfifo((folder_ / "list.winvrx-tmp").c_str(), 0600), 0);
    EXPECT_THROW(files_->replace(folder_ / "list", "new"), FileFault);
    fs::remove(folder_ / "list.winvrx-tmp");
    fs::create_symlink("outside", folder_ / "list.winvrx-tmp");
    EXPECT_THROW(files_->replace(folder_ / "list", "new"), FileFault);
    EXPECT_EQ(files_->read(folder_ / "list"), "old");
    EXPECT_EQ(files_->read(folder_ / "outside"), "not ours");
}

TEST_F(SystemFiles, AFileOf200MegabytesIsRefusedAndLeftAlone) {
    constexpr std::uintmax_t kSize = 200'000'000;
    const fs::path file = folder_ / "01CartaPonto";
    files_->replace(file, "001");
    fs::resize_file(file, kSize);
    const char* const cause = " \"01CartaPonto\": o arquivo passa de 64 MB.";
    EXPECT_EQ(explanation([&] { (void)files_->read(file); }),
              std::string("Não foi possível ler") + cause);
    EXPECT_EQ(explanation([&] { files_->replace(file, std::string(kLargestFile + 1, ' ')); }),
              std::string("Não foi possível gravar") + cause);
    EXPECT_EQ(fs::file_size(file), kSize);
    fs::resize_file(file, kLargestFile);
    EXPECT_EQ(files_->read(file)->size(), kLargestFile);
}

/// Takes every right on a folder away, from the superuser too, until it is destroyed.
class Forbidden {
  public:
    explicit Forbidden(const fs::path& folder) : folder_(folder) {
        fs::permissions(folder_, fs::perms::none);
        if (::geteuid() == 0) dropped_ = ::seteuid(kNobody) == 0;
    }
    ~Forbidden() {
        if (dropped_ && ::seteuid(0) != 0) ADD_FAILURE() << "still nobody";
        fs::permissions(folder_, fs::perms::owner_all);
    }
    Forbidden(const Forbidden&) = delete;
    Forbidden& operator=(const Forbidden&) = delete;

  private:
    static constexpr uid_t kNobody = 65534;

    fs::path folder_;
    bool dropped_ = false;
};

TEST_F(SystemFiles, WithoutPermissionNothingChanges) {
    files_->replace(folder_ / "list", "old");
    {
        const Forbidden forbidden(folder_);
        const char* const cause = " \"list\": não há permissão de gravação ou leitura.";
        EXPECT_EQ(explanation([&] { (void)files_->read(folder_ / "list"); }),
                  std::string("Não foi possível ler") + cause);
        EXPECT_EQ(explanation([&] { files_->replace(folder_ / "list", "new"); }),
                  std::string("Não foi possível gravar") + cause);
        EXPECT_THROW((void)files_->remove(folder_ / "list"), FileFault);
        EXPECT_THROW((void)files_->names(folder_), FileFault);
        EXPECT_THROW((void)files_->exists(folder_ / "list"), FileFault);
    }
    EXPECT_EQ(files_->read(folder_ / "list"), "old");
}

TEST_F(SystemFiles, ListsFilesButNoFolders) {
    files_->makeFolder(folder_ / "WinvrxOfNew" / "deep");
    files_->makeFolder(folder_ / "WinvrxOfNew" / "deep");
    files_->replace(folder_ / "01Empresa", "four");
    fs::create_directory_symlink("WinvrxOfNew", folder_ / "link to a folder");
    EXPECT_EQ(sortedNames(), (std::vector<std::string>{"01Empresa"}));
    const struct timespec moment[] = {{1'710'489'600, 25}, {1'710'489'600, 25}};
    ASSERT_EQ(::utimensat(AT_FDCWD, (folder_ / "01Empresa").c_str(), moment, 0), 0);
    const auto listed = files_->list(folder_);
    ASSERT_EQ(listed.size(), 1U);
    EXPECT_EQ(listed[0].name, "01Empresa");
    EXPECT_EQ(listed[0].size, 4U);
    EXPECT_EQ(listed[0].written.count(), 1'710'489'600'000'000'025);
    EXPECT_TRUE(files_->list(folder_ / "none").empty());
}

}  // namespace
}  // namespace winvrx

#endif
