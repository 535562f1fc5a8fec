#pragma once

#include "foundation/desk/word_processor.h"
#include "foundation/values/faults.h"

#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>

namespace winvrx {

/// LibreOffice Writer, started by its command `soffice`; on Windows a document is shown by another
/// program that is registered for it where there is no LibreOffice. It works while the program goes
/// on; the documents lie in a folder of the run's own, so that what is shown has to be saved
/// elsewhere to outlive the run.
class LibreOffice final : public WordProcessor {
  public:
    /// `onFailure` is told of a document that the word processor gave up after `print` returned.
    explicit LibreOffice(std::function<void(const Fault&)> onFailure);
    /// Waits until what was to be printed is printed.
    ~LibreOffice() override;
    LibreOffice(const LibreOffice&) = delete;
    LibreOffice& operator=(const LibreOffice&) = delete;

    void show(const Document& document) override;
    void print(const Document& document, const std::string& printer) override;
    [[nodiscard]] std::string fileOf(const Document& document) const override;
    void showFile(const std::filesystem::path& file) override;
    void printFile(const std::filesystem::path& file, const std::string& printer) override;

  private:
    /// In a file of the document's title, which the window and the print queue show.
    [[nodiscard]] QString save(const Document& document);
    void open(const QString& path);
    void queue(const QString& path, const std::string& printer);
    [[nodiscard]] bool startNextJob();
    void endJob(int exitCode, QProcess::ExitStatus status);

    std::function<void(const Fault&)> onFailure_;
    QTemporaryDir folder_;
    int saved_ = 0;
    QString program_;
    QList<QStringList> jobs_;  ///< arguments of what waits; one is printed after the other
    QProcess printing_;
};

}  // namespace winvrx
