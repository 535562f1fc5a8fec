// The papers of a payroll: what is asked before them, and what stands on their pages.
#include "personnel/payslips/folha_papers.h"

#include "foundation/desk/desktop/open_document.h"
#include "personnel/payroll/desktop/folha_visao_window.h"
#include "personnel/payroll/payroll_overview.h"
#include "personnel/payslips/pay_receipt.h"
#include "personnel/payslips/provision_report.h"
#include "personnel/payslips/run_receipt.h"
#include "personnel/vacation/vacation_record.h"
#include "report/desktop/qt_report_engine.h"
#include "tests/support/employee_desk.h"
#include "tests/support/payroll_office.h"
#include "tests/support/printed_text.h"
#include "tests/support/recording_engine.h"
#include "tests/support/recording_word_processor.h"
#include "tests/support/window_driver.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTreeWidget>

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;
using enum Answer;
using namespace testing;

struct Papers : ::testing::Test {
    PayrollOffice office{WINVRX_SOURCES "/resources/legal"};
    FolhaScreen screen{office.at, PayrollOffice::kLegal};
    RecordingEngine engine;
    RecordingWordProcessor writer;
    FolhaPapers papers{office.at, {engine, writer}, screen};

    void SetUp() override {
        ASSERT_TRUE(screen.open());
        ASSERT_TRUE(screen.select(0));
    }
    void contract() { office.file("01contrato001") = "contrato"; }
    void record() {
        office.person.answers = {Yes};
        ASSERT_TRUE(screen.save());
        office.person.takeTexts();
    }
    /// The texts of a document, a line each; cells behind one another.
    [[nodiscard]] static std::string textOf(const Document& document) {
        std::string text;
        for (const auto& block : document.blocks) {
            if (const auto* paragraph = std::get_if<Paragraph>(&block)) {
                text += paragraph->text + "\n";
                continue;
            }
            for (const auto& row : std::get<DocumentTable>(block).rows) {
                for (const Paragraph& cell : row)
                    text += cell.text + "|";
                text += "\n";
            }
        }
        return text;
    }
};

TEST_F(Papers, AreRefusedInTheOrderOfTheirChecks) {
    EXPECT_FALSE(papers.printPayroll());
    contract();
    EXPECT_FALSE(papers.printPayroll());
    EXPECT_FALSE(papers.showReceipt(false));
    const std::string notSaved = "O Item Selecionado ainda não foi Gravado!!";
    EXPECT_EQ(office.person.shown.back().title, "Gravar Selecionado");
    EXPECT_THAT(office.person.takeTexts(),
                ElementsAre("Não Existe Contrato de Trabalho Gerado para este Funcionário!!",
                            notSaved, notSaved));
    record();
    EXPECT_FALSE(papers.printPayroll());
    ASSERT_TRUE(screen.type(EventCode::parse("005").value(), "1,00"));
    EXPECT_FALSE(papers.showReceipt(false));
    ASSERT_TRUE(screen.type(EventCode::parse("005").value(), ""));
    EXPECT_FALSE(papers.showReceipt(false));
    EXPECT_FALSE(papers.showAdvance());
    office.file("01configAf001") = "**** 20/03/2026\r\n";
    EXPECT_FALSE(papers.printSlips());
    EXPECT_TRUE(engine.jobs.empty() && writer.shown.empty());
    EXPECT_THAT(office.person.takeTexts(),
                ElementsAre("Confirma Impressão da FOLHA DE PAGAMENTO?", notSaved,
                            "Confirma Impressão do RECIBO DE PAGAMENTO?",
                            "Não existem dados para Impressão!!!",
                            "Este Funcionário Encontra-se Inativo!!"));
}

TEST_F(Papers, TheReceiptHasItsLabelsToTheLetter) {
    contract();
    record();
    writer.installed = false;
    office.person.answers = {Yes};
    EXPECT_FALSE(papers.showReceipt(true));
    EXPECT_EQ(office.person.takeTexts().back(),
              "Não foi possível Imprimir! O Microsoft Word pode não estar Instalado neste PC.");
    writer.installed = true;
    office.person.answers = {Yes};
    ASSERT_TRUE(papers.showReceipt(true));
    EXPECT_THAT(textOf(writer.shown.at(0)), StartsWith(R"(RECIBO DE PAGAMENTO
Data Emissão do Documento: 15/03/2024
março de 2026
Dados da Empresa
Nome: PADARIA SÃO JOÃO LTDA
Endereço: RUA DAS FLORES, 10 - CEP: 01310-100
CNPJ: 12.345.678/0001-95
Dados do Sócio
Nome: ANA DA CONCEIÇÃO
Cargo: CONFEITEIRA
NIT: 12012345678
CRÉDITOS||DESCONTOS||
001 SALARIO BASE|R$ 3.000,00|||
005 HORA EXTRA 50%|R$ 40,91|||
010 DSR REFLEX.HORA EXTR|R$ 7,87|||
||091 INSS|R$ 254,44|
||025 VALE TRANSPORTES|R$ 180,00|

TOTAL CRÉDITOS:                     R$ 3.048,78
TOTAL DÉBITOS:                     R$ 434,44
TOTAL LÍQUIDO:                     R$ 2.614,34


_____________________________________________
(Assinatura do Sócio)
MEMÓRIA DE CÁLCULO
001 ANA DA CONCEIÇÃO · março/2026
001 SALARIO BASE: R$ 3.000,00
Salário: 3.000,00
005 HORA EXTRA 50%: R$ 40,91
Horas extras 50%: 3.000,00 ÷ 220 × 1,5 × 2:00 = 40,91
)"));
    ASSERT_TRUE(screen.type(EventCode::parse("031").value(), "1200"));
    office.person.answers = {Yes};
    ASSERT_TRUE(papers.showAdvance());
    EXPECT_THAT(textOf(writer.shown.at(1)),
                HasSubstr("CRÉDITOS||DESCONTOS||\n031 ADIANTAMENTO SALAR|R$ 1.200,00|||\n"));
}

/// The program's own engine, into a PDF file.
struct PdfPapers : Papers {
    QTemporaryDir folder;
    QtReportEngine pdf{[] { return std::vector<std::filesystem::path>{WINVRX_SOURCES "/layouts"}; },
                       [this] { return std::filesystem::path(path("qdb.mdb").toStdString()); },
                       office.log};

    [[nodiscard]] QString path(const char* name) const {
        return folder.filePath(QLatin1String(name));
    }
    [[nodiscard]] static bool canConvert() {
        return !QStandardPaths::findExecutable(QStringLiteral("soffice")).isEmpty() && canReadPdf();
    }
    /// The documents that were shown, into "0.pdf", "1.pdf" and so on.
    void convert() {
        QStringList arguments{QStringLiteral("-env:UserInstallation=file://") + path("user"),
                              QStringLiteral("--headless"),
                              QStringLiteral("--convert-to"),
                              QStringLiteral("pdf"),
                              QStringLiteral("--outdir"),
                              folder.path()};
        for (std::size_t at = 0; at < writer.shown.size(); ++at) {
            QFile file(path((std::to_string(at) + ".fodt").c_str()));
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            file.write(openDocument(writer.shown[at]));
            arguments << file.fileName();
        }
        (void)outputOf(QStringLiteral("soffice"), arguments);
    }
    [[nodiscard]] QString printed(ReportRequest request, const std::vector<ReportRows>& sheets) {
        request.output = ReportOutput::PdfFile;
        request.pdfPath = path("folha.pdf").toStdString();
        ReportPages pages(sheets.size(), [&](std::size_t at) { return sheets[at]; });
        EXPECT_EQ(pdf.print(request, pages, [](int, int) { return true; }), PrintEnd::Done);
        return path("folha.pdf");
    }
};

TEST_F(PdfPapers, ReceiptsOfVacationAndThirteenthReadBackFromTheirPages) {
    if (!canConvert()) GTEST_SKIP() << "LibreOffice is not installed";
    contract();
    office.file("01Ferias001") = encode(VacationItem{.acquisitionFirst = "01/02/2025",
                                                     .acquisitionLast = "31/01/2026",
                                                     .kind = std::string(kVacationKind),
                                                     .granted = "30",
                                                     .first = "09/03/2026",
                                                     .last = "28/03/2026",
                                                     .sold = "10",
                                                     .thirteenth = "N",
                                                     .month = "03-2026"}) +
                                 "\r\n";
    const PaperDesk desk{writer,
                         [] { return std::vector<std::filesystem::path>{"/program/documents"}; }};
    for (const char* name : {"recibo-ferias.txt", "recibo-13.txt"}) {
        QFile text(QStringLiteral(WINVRX_SOURCES "/resources/documents/") + QLatin1String(name));
        ASSERT_TRUE(text.open(QIODevice::ReadOnly));
        office.files.content[std::string("/program/documents/") + name] =
            text.readAll().toStdString();
    }
    struct Case {
        PayrollRun run;
        std::vector<const char*> texts;
    };
    const std::array cases = {
        Case{PayrollRun::Vacation,
             {"RECIBO DE FÉRIAS", "01/02/2025 a 31/01/2026", "09/03/2026 a 28/03/2026, 20 dias",
              "011 SALARIO BASE FERIAS R$ 2.000,00", "014 1/3 FÉRIAS R$ 666,67", "R$ 1.000,00",
              "R$ 333,33", "TOTAL R$ 4.000,00 R$ 215,68", "LÍQUIDO R$ 3.784,32",
              "importância líquida de R$ 3.784,32", "ANA DA CONCEIÇÃO"}},
        Case{PayrollRun::ThirteenthFirst,
             {"RECIBO DO 13º SALÁRIO - 1º PARCELA", "Ano de 2026, paga em março",
              "019 13ºSALAR ADIANTADO R$ 1.500,00", "LÍQUIDO R$ 1.500,00"}},
        Case{PayrollRun::ThirteenthSecond,
             {"RECIBO DO 13º SALÁRIO - 2º PARCELA", "017 13ºSALARIO INTEGRAL R$ 3.000,00",
              "095 INSS S/13ºSAL R$ 248,58", "032 DESC 13ºSALAR ADIANT R$ 1.500,00",
              "TOTAL R$ 3.000,00 R$ 1.748,58", "LÍQUIDO R$ 1.251,42"}}};
    for (const Case& one : cases) {
        ASSERT_TRUE(screen.chooseRun(one.run));
        record();
        office.person.answers = {Yes};
        const auto& shown = screen.folha().shown();
        ASSERT_TRUE(showRunReceipt(office.at, desk, shown));
    }
    convert();
    for (std::size_t at = 0; at < cases.size(); ++at) {
        const QString pdf = path((std::to_string(at) + ".pdf").c_str());
        const std::string text = printedText(pdf).toStdString();
        for (const char* expected : cases[at].texts)
            EXPECT_THAT(text, HasSubstr(expected));
        EXPECT_EQ(printedWords(pdf).back().page, 1);
    }
}

TEST_F(PdfPapers, ProvisionsOfTheMonthReadBackFromTheirPage) {
    const PrintDesk desk{office.at, engine};
    EXPECT_FALSE(previewProvisions(desk, PayrollOffice::kMonth));
    EXPECT_EQ(office.person.takeTexts().back(), "Não há provisão de férias gravada neste mês.");
    for (const auto& [name, month, net] : {std::tuple("01Ferias001", "03-2026", "4.000,00"),
                                           std::tuple("01Ferias002", "03-2026", "8.266,67"),
                                           std::tuple("01Ferias004", "02-2026", "3.333,33")})
        office.file(name) = encode(VacationItem{.acquisitionFirst = "01/02/2025",
                                                .acquisitionLast = "31/01/2026",
                                                .kind = std::string(kProvisionKind),
                                                .granted = "30",
                                                .thirteenth = "N",
                                                .month = month,
                                                .net = net}) +
                            "\r\n";
    ASSERT_TRUE(previewProvisions(desk, PayrollOffice::kMonth));
    if (!canReadPdf()) GTEST_SKIP() << "pdftotext is not installed";
    const auto& job = engine.jobs.at(0);
    const std::string text = printedText(printed(job.request, job.cards)).toStdString();
    for (const char* expected : {"Provisão de férias", "PADARIA SÃO JOÃO LTDA", "março/2026",
                                 "001 ANA DA CONCEIÇÃO, 01/02/2025 a 31/01/2026 30 dias 4.000,00",
                                 "Férias 3.000,00 + 1/3 1.000,00", "Férias 6.200,00 + 1/3 2.066,67",
                                 "Total da provisão 12.266,67"})
        EXPECT_THAT(text, HasSubstr(expected));
    EXPECT_EQ(text.find("EVA"), std::string::npos);
}

TEST_F(PdfPapers, PayrollAndSlipsReadBackFromTheirPages) {
    contract();
    office.person.answers = {Yes, Yes};
    ASSERT_TRUE(screen.saveAll({}));
    office.person.takeTexts();
    office.person.answers = {Yes, Yes};
    ASSERT_TRUE(papers.printPayroll());
    EXPECT_EQ(office.person.shown.back().detail, "Sem folha gravada, ficam de fora: RUI, EVA.");
    ASSERT_TRUE(papers.printSlips());
    ASSERT_EQ(engine.jobs.size(), 2U);
    if (!canReadPdf()) GTEST_SKIP() << "pdftotext is not installed";
    const QString sheet = printedText(printed(engine.jobs[0].request, engine.jobs[0].cards));
    EXPECT_THAT(sheet.toStdString(),
                HasSubstr("001 ANA DA CONCEIÇÃO 3.000,00 40,91 7,87 3.048,78 254,44 180,00 434,44 "
                          "2.614,34 243,90"));
    EXPECT_THAT(sheet.toStdString(), HasSubstr("TOTAL 9.200,00 125,46"));
    const auto words = printedWords(printed(engine.jobs[1].request, engine.jobs[1].cards));
    EXPECT_EQ(std::ranges::count(words, QStringLiteral("Funcionário:"), &PrintedWord::text), 4);
    const double half = 148.5 * kPointsPerMillimetre;
    EXPECT_LT(wordOf(words, QStringLiteral("2.614,34")).bottom, half);
    EXPECT_GT(wordOf(words, QStringLiteral("4.748,90")).top, half);
}

TEST_F(PdfPapers, TheReceiptReadsBackFromTheWordProcessorsPages) {
    if (!canConvert()) GTEST_SKIP() << "LibreOffice is not installed";
    contract();
    record();
    office.person.answers = {Yes};
    ASSERT_TRUE(papers.showReceipt(true));
    convert();
    const auto words = printedWords(path("0.pdf"));
    EXPECT_EQ(wordOf(words, QStringLiteral("(Assinatura")).page, 1);
    EXPECT_EQ(wordOf(words, QStringLiteral("MEMÓRIA")).page, 2);
    EXPECT_EQ(wordOf(words, QStringLiteral("2.614,34")).page, 1);
}

TEST_F(Papers, TheViewOfTheMonthSaysWhatIsRecordedAndWhatHasChanged) {
    record();
    office.ana.salary = "3.100,00";
    office.record();
    ASSERT_TRUE(screen.open());
    TestSpreadsheet spreadsheet;
    FolhaVisao view(office.at, screen, spreadsheet);
    ASSERT_TRUE(view.load());
    DrivenWindow<FolhaVisaoWindow> window(view, QStringList());
    EXPECT_EQ(window.namelessWidgets(), "");
    EXPECT_EQ(window.sharedAltLetters(), "");
    const auto table = view.shown().table();
    EXPECT_THAT(table[1], ElementsAre("001", "ANA DA CONCEIÇÃO", "3.048,78", "434,44", "2.614,34",
                                      "0,00", "243,90", HasSubstr("Gravada; mudou: hoje R$ 2.")));
    EXPECT_THAT(table[4].back(), "Sem cartão de ponto");
    EXPECT_EQ(table[5][4], moneyText({261434 + view.shown().people[1].net.cents}));
    ASSERT_TRUE(view.exportWorkbook("/data/folha.xlsx") && view.exportCsv("/data/folha.csv"));
    EXPECT_EQ(spreadsheet.sheets.at(0).rows.at(0).at(4), SheetCell(Money{261434}));
    EXPECT_THAT(office.file("folha.csv"), HasSubstr("001;ANA DA CONCEIÇÃO;\"3.048,78\";"));
    window.press(Qt::Key_Down);
    window.press(Qt::Key_Return);
    EXPECT_EQ(window.window.chosen(), "002");
}

}  // namespace
}  // namespace winvrx
