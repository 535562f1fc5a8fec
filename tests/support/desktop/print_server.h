#pragma once

#include <QString>
#include <QTemporaryDir>

#include <memory>

class QProcess;

namespace winvrx::testing {

/// A print server of the tests' own: a cupsd in a scratch folder, reached through a socket there.
/// The address is set before main(), ahead of the first question for printers, so that no test
/// meets the printers of the machine; until start() there is none at all. What fails throws.
class PrintServer {
  public:
    PrintServer();
    ~PrintServer();
    PrintServer(const PrintServer&) = delete;
    PrintServer& operator=(const PrintServer&) = delete;

    /// What keeps the server from running here; empty when nothing does.
    [[nodiscard]] static QString obstacle();

    void start();
    void stop();

    void addPrinter(const QString& name);
    /// Like most printers on paper, it prints nothing within 12 points of an A4 sheet's edges.
    void addPrinterWithMargins(const QString& name);
    void makeDefault(const QString& name);
    void removePrinter(const QString& name);

    /// The PDF that the backend made of the job with this title, once the job is done.
    [[nodiscard]] QString printedFile(const QString& title) const;

    /// The document of the last job as the program handed it over.
    [[nodiscard]] QString lastDocument() const { return lastSpooled("d*"); }

    /// The last job's options as the server records them, which it does when it stops.
    [[nodiscard]] QByteArray lastOptionsOnStop();

  private:
    [[nodiscard]] QString path(const char* name) const;
    void write(const char* name, const char* text) const;
    [[nodiscard]] QString lastSpooled(const char* pattern) const;

    QTemporaryDir folder_;
    std::unique_ptr<QProcess> daemon_;
};

inline PrintServer printServer;

}  // namespace winvrx::testing
