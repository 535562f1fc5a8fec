// What a played month leaves behind, read as a user would read it: the printed cards, the record
// files, the pictures and the conversation.
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace {

using ::testing::Contains;
using ::testing::HasSubstr;

QByteArray bytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Of these windows the played month keeps pictures.
constexpr const char* kWindows[] = {"janela-principal",
                                    "empresas",
                                    "funcionarios",
                                    "mes-carnaval",
                                    "feriados",
                                    "mes",
                                    "dados",
                                    "afastamentos",
                                    "tipo",
                                    "imprimir",
                                    "previa",
                                    "escalas",
                                    "quadro",
                                    "contrato",
                                    "carteira",
                                    "etiquetas",
                                    "textos",
                                    "estoque",
                                    "previa-etiquetas",
                                    "folha",
                                    "visao-do-mes",
                                    "eventos",
                                    "folha-de-pagamento",
                                    "recibos",
                                    "espelhos",
                                    "resumo-do-mes",
                                    "relatorios",
                                    "formulario",
                                    "internet",
                                    "sobre"};

class TypicalMonth : public ::testing::Test {
  protected:
    static void SetUpTestSuite() {
        folder_ = std::make_unique<QTemporaryDir>();
        QProcess play;
        play.start(QCoreApplication::applicationDirPath() + QStringLiteral("/typical_month"),
                   {folder_->path()});
        ASSERT_TRUE(play.waitForFinished(120'000));
        const QString said = QString::fromUtf8(play.readAllStandardError());
        ASSERT_EQ(play.exitCode(), 0) << said.toStdString();
        for (const QString& line : said.split(QLatin1Char('\n'), Qt::SkipEmptyParts))
            EXPECT_TRUE(line.startsWith(QStringLiteral("This plugin does not support")) ||
                        line.startsWith(QStringLiteral("QStandardPaths: ")))
                << line.toStdString();
    }
    static void TearDownTestSuite() { folder_.reset(); }

    static QString file(const char* name) { return folder_->filePath(QString::fromUtf8(name)); }
    static QByteArray record(const char* name) {
        return bytesOf(file("disco-c/Users/Public/Documents/Winvrx/") + QString::fromUtf8(name));
    }

    /// The text of each printed page.
    static QStringList pages(const char* name = "cartoes.pdf") {
        QProcess reader;
        reader.start(QStringLiteral("pdftotext"),
                     {QStringLiteral("-layout"), file(name), QStringLiteral("-")});
        EXPECT_TRUE(reader.waitForFinished(30'000));
        return QString::fromUtf8(reader.readAllStandardOutput())
            .split(QLatin1Char('\f'), Qt::SkipEmptyParts);
    }

    /// The printed row of a day, its blanks folded: "01 sex 08:00 12:00".
    static std::string dayRow(const QString& page, int day) {
        const QRegularExpression row(
            QStringLiteral("^ *%1 +(dom|seg|ter|qua|qui|sex|sáb).*$")
                .arg(day, 2, 10, QLatin1Char('0')),
            QRegularExpression::MultilineOption | QRegularExpression::UseUnicodePropertiesOption);
        return row.match(page).captured().simplified().toStdString();
    }

    static std::unique_ptr<QTemporaryDir> folder_;
};

std::unique_ptr<QTemporaryDir> TypicalMonth::folder_;

TEST_F(TypicalMonth, PrintsOnePageAnEmployeeWithTheHeaderBlock) {
    const QStringList cards = pages();
    ASSERT_EQ(cards.size(), 3);
    for (const QString& card : cards)
        for (const char* caption :
             {"Razão: ", "Cnpj: ", " - Reg.: ", " CTPS: ", "Admiss: ", "Função: ", "Período.: ",
              " - Descanso Semanal: ", "Ent:", " Saí:", " - Inter.Refei.: "})
            EXPECT_THAT(card.toStdString(), HasSubstr(caption));
    EXPECT_THAT(cards[1].toStdString(), HasSubstr("ANA PAULA D'ÁVILA"));
}

TEST_F(TypicalMonth, PrintsAMirrorOfEachAndTheHoursReport) {
    const QStringList mirrors = pages("espelhos.pdf");
    ASSERT_EQ(mirrors.size(), 3);
    EXPECT_THAT(mirrors[0].toStdString(), HasSubstr("Corrigido à mão: 04/03, 05/03"));
    EXPECT_THAT(record("RelHorasExtras").toStdString(),
                HasSubstr("|08:12 12:00 13:00 17:30            |"));
}

TEST_F(TypicalMonth, KeepsOneCopyOfTheFolderAsTheDayFoundIt) {
    const QDir copies(file("disco-c/Users/Public/Documents/Winvrx/Copias"));
    const QStringList names = copies.entryList({QStringLiteral("*.zip")}, QDir::Files);
    ASSERT_EQ(names.size(), 1);
    const QByteArray bytes = bytesOf(copies.filePath(names.front()));
    EXPECT_TRUE(bytes.contains("01Empresa"));
    EXPECT_FALSE(bytes.contains("01CartaPonto"));
}

TEST_F(TypicalMonth, PrintsARowForEachOfThirtyOneDays) {
    const QStringList cards = pages();
    ASSERT_EQ(cards.size(), 3);
    for (int card = 0; card < 3; ++card) {
        for (int day = 1; day <= 31; ++day) {
            const std::string row = dayRow(cards[card], day);
            ASSERT_FALSE(row.empty()) << "card " << card << " day " << day;
            const bool sunday = day % 7 == 3;
            const bool holiday = day == 29;
            const bool beforeAdmission = card == 1 && day < 12;
            const bool absent = card == 0 && day == 12;
            const bool onLeave = card == 0 && day >= 18 && day <= 20;
            const bool dismissed = card == 2 && day > 20;
            const bool worked =
                !sunday && !holiday && !beforeAdmission && !absent && !onLeave && !dismissed;
            EXPECT_EQ(row.find(':') != std::string::npos, worked) << row;
        }
    }
    EXPECT_EQ(dayRow(cards[0], 1), "01 sex 08:00 12:00 13:00 17:00 08:00");
    EXPECT_EQ(dayRow(cards[0], 4), "04 seg 08:12 12:00 13:00 17:30 08:18");
    EXPECT_EQ(dayRow(cards[0], 5), "05 ter 08:00 12:00 13:10 17:00 07:50");
    EXPECT_EQ(dayRow(cards[0], 12), "12 ter Falta");
    EXPECT_EQ(dayRow(cards[1], 11), "11 seg");
    EXPECT_EQ(dayRow(cards[1], 12), "12 ter 09:00 13:00 14:00 18:00 08:00");
    EXPECT_EQ(dayRow(cards[2], 4), "04 seg 22:00 02:00 03:00 06:00 07:00");
    EXPECT_EQ(dayRow(cards[0], 29), "29 sex FERIADO");
    EXPECT_EQ(dayRow(cards[0], 18), "18 seg AFASTAMENTO");
    EXPECT_EQ(dayRow(cards[2], 29), "29 sex");
}

TEST_F(TypicalMonth, LeavesRecordsOfTheirLayout) {
    const QByteArray companies = record("01Empresa");
    ASSERT_EQ(companies.size(), 2 * (549 + 2));
    EXPECT_EQ(companies.mid(549, 2), "\r\n");
    EXPECT_EQ(companies.mid(551, 10), "02 PADARIA");
    for (const char* ofTheRun : {"DataIde.ivc", "LocMen.lvc"})
        EXPECT_FALSE(QFile::exists(file("disco-c/Users/Public/Documents/Winvrx/") +
                                   QString::fromUtf8(ofTheRun)));
    EXPECT_EQ(record("02CartaoDePontoTipo"), "01Tilibra\r\n");
    const QList<QByteArray> month = record("03-2024ds.rdx").split('\n');
    ASSERT_GT(month.size(), 52);
    EXPECT_EQ(month[33], "1\r");
    const QList<QByteArray> punches = record("02003-03-2024.bdx").split('\n');
    ASSERT_EQ(punches.size(), 33);
    EXPECT_EQ(punches[0], "  \r");
    EXPECT_EQ(punches[1].left(60), QByteArray("01/sex/mar22:0002:0003:0006:00").leftJustified(60));
    EXPECT_EQ(punches[3].mid(45, 15), "DESCANSO SEMANA");
    EXPECT_EQ(punches[29].mid(10), QByteArray("\r").rightJustified(punches[29].size() - 10));
    EXPECT_EQ(record("02001-03-2024.bdx").split('\n')[29].mid(45, 15),
              QByteArray("FERIADO").leftJustified(15));
    EXPECT_THAT(record("02configAf003").toStdString(), ::testing::EndsWith("**** 25/04/2024\r\n"));
    EXPECT_TRUE(record("02contrato002").startsWith("Experi\xEAncia         12/03/20244545"));
    EXPECT_TRUE(QFile::exists(file("carteira.pdf")));
    const QList<QByteArray> porter = record("02004-03-2024.bdx").split('\n');
    ASSERT_EQ(porter.size(), 33);
    EXPECT_EQ(porter[3].left(30), "03/dom/mar09:0012:0013:0017:20") << "a Sunday at work";
    EXPECT_EQ(porter[5].mid(45, 15), "DESCANSO SEMANA");
    EXPECT_TRUE(record("02GRUPO-032024.rdx").startsWith("GRUPO-001 Unico 5x1   05/03/2024 007 "));
}

TEST_F(TypicalMonth, KeepsPicturesInBothPalettesTheConversationAndNothingUntold) {
    const QStringList pictures = QDir(file("telas")).entryList({QStringLiteral("*.png")});
    std::vector<std::string> names;
    for (const QString& name : pictures)
        names.push_back(name.mid(3).toStdString());
    for (const char* window : kWindows) {
        EXPECT_THAT(names, Contains(std::string(window) + "-claro.png"));
        EXPECT_THAT(names, Contains(std::string(window) + "-escuro.png"));
    }
    EXPECT_EQ(bytesOf(file("leitor-de-tela.txt")).toStdString(), "");
    EXPECT_THAT(
        bytesOf(file("documentos/RECIBO DE PAGAMENTO - ANA PAULA D'ÁVILA.fodt")).toStdString(),
        AllOf(HasSubstr("(Assinatura do Sócio)"), HasSubstr("MEMÓRIA DE CÁLCULO")));
    EXPECT_TRUE(
        record("02fp0000203-2024.bdx").startsWith("001 SALARIO BASE         1220,01111000"));
    const std::string conversation = bytesOf(file("conversa.txt")).toStdString();
    EXPECT_THAT(conversation, HasSubstr("Título: INCLUSÃO\n"
                                        "Texto: Confirma a Inclusão na LISTA DE FUNCIONARIOS?\n"
                                        "Ícone: pergunta\n"
                                        "Resposta: Sim\n"));
    EXPECT_THAT(conversation,
                HasSubstr("Texto: Confirma Aplicação de Ponto de ENTRADA e SAÍDA conforme o Padrão "
                          "para Todos os Itens do Turno: Todos da Lista?\n"));
}

}  // namespace
