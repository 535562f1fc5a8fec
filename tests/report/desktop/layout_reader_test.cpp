#include "report/desktop/layout_reader.h"

#include "output/stocks/card_rows.h"

#include <QBuffer>

#include <gmock/gmock.h>

#include <vector>

namespace winvrx {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;

Layout read(QByteArray bytes) {
    QBuffer file(&bytes);
    file.open(QIODevice::ReadOnly);
    return readLayout(file, "card.rpt", cardColumns());
}

/// `body` begins on line 2.
QByteArray sheet(const QByteArray& body) {
    return R"(<svg xmlns="http://www.w3.org/2000/svg" width="210mm" height="297mm" )"
           R"(viewBox="0 0 2100 2970" font-size="25" data-pitch="40">)"
           "\n" +
           body + "</svg>";
}

/// A text in each of 201 sizes.
QByteArray manyInks() {
    QByteArray texts;
    for (int size = 1; size <= 201; ++size)
        texts += "<text x='1' y='1' font-size='" + QByteArray::number(size) + "'>a</text>";
    return texts;
}

struct Damage {
    const char* what;
    QByteArray bytes;
    const char* prefix;
    const char* cause;
};

/// Each is refused with its line and its cause.
void expectRefused(const std::vector<Damage>& damages) {
    for (const Damage& one : damages) {
        SCOPED_TRACE(one.what);
        try {
            (void)read(one.bytes);
            ADD_FAILURE() << "read without a fault";
        } catch (const LayoutFault& fault) {
            EXPECT_THAT(fault.what(), StartsWith(one.prefix));
            EXPECT_THAT(fault.what(), HasSubstr(one.cause));
            EXPECT_THAT(fault.explanation(), HasSubstr(one.cause));
        }
    }
}

TEST(LayoutReader, RefusesWhatIsNoLayout) {
    expectRefused({
        {"not XML", "time card", "card.rpt:1: ", ""},
        {"empty", "", "card.rpt:1: ", ""},
        {"cut short", sheet("<g>\n<text x='1' y='2'>a"), "card.rpt:3: ", ""},
        {"ended early", "<svg width='9mm' height='9mm' viewBox='0 0 9 9'>\n",
         "card.rpt:2: ", "termina antes do fim"},
        {"text after the end", sheet("") + "\n<g/>", "card.rpt:3: ", ""},
        {"another root", "<html/>", "card.rpt:1: ", "não é um arquivo svg"},
        {"no millimetres", "<svg width='210' height='297' viewBox='0 0 1 1'/>",
         "card.rpt:1: ", "não está em mm"},
        {"no viewBox", "<svg width='210mm' height='297mm'/>", "card.rpt:1: ", "viewBox"},
        {"skewed viewBox", "<svg width='210mm' height='297mm' viewBox='0 0 210 210'/>",
         "card.rpt:1: ", "proporções"},
        {"no pitch at all", "<svg width='10mm' height='10mm' viewBox='0 0 1 1'>\n</svg>",
         "card.rpt:2: ", "data-pitch"},
    });
}

TEST(LayoutReader, NamesTheLineOfAWrongField) {
    expectRefused({
        {"unknown field", sheet("\n<text x='1' y='2' data-field='nmoe'/>"),
         "card.rpt:3: ", "\"nmoe\""},
        {"unknown field in a template", sheet("<text x='1' y='2' data-template='a {b}'/>"),
         "card.rpt:2: ", "\"b\""},
        {"unknown field in a condition", sheet("<text x='1' y='2' data-unless='ent1 b'/>"),
         "card.rpt:2: ", "\"b\""},
        {"open brace", sheet("<text x='1' y='2' data-template='{nome'/>"), "card.rpt:2: ", "{"},
        {"closing brace", sheet("<text x='1' y='2' data-template='nome}'/>"), "card.rpt:2: ", "}"},
        {"field and template", sheet("<text x='1' y='2' data-field='nome' data-template='a'/>"),
         "card.rpt:2: ", "data-field e data-template"},
    });
}

TEST(LayoutReader, NamesTheLineOfAWrongGroup) {
    expectRefused({
        {"missing pitch", sheet("\n\n<g data-rows='31'/>"), "card.rpt:4: ", "data-pitch"},
        {"pitch of nothing", sheet("<g data-rows='31' data-pitch='0'/>"),
         "card.rpt:2: ", "data-pitch"},
        {"bad count", sheet("<g data-rows='many' data-pitch='4'/>"), "card.rpt:2: ", "many"},
        {"rows in rows",
         sheet("<g data-rows='2' data-pitch='4'>\n<g data-rows='2' data-pitch='4'/></g>"),
         "card.rpt:3: ", "dentro"},
        {"first row of none", sheet("<g data-first='0'/>"), "card.rpt:2: ", "data-first"},
        {"first row past all", sheet("<g data-first='201'/>"), "card.rpt:2: ", "data-first"},
        {"first row in first row", sheet("<g data-first='2'><g data-first='3'/></g>"),
         "card.rpt:2: ", "dentro"},
        {"third face", sheet("<g data-side='3'/>"), "card.rpt:2: ", "data-side"},
        {"face in face", sheet("<g data-side='1'><g data-side='2'/></g>"),
         "card.rpt:2: ", "dentro"},
        {"unknown block", sheet("<g data-block='footer'/>"), "card.rpt:2: ", "footer"},
        {"block in block", sheet("<g data-block='header'><g data-block='stock'/></g>"),
         "card.rpt:2: ", "dentro"},
    });
}

TEST(LayoutReader, NamesTheLineOfAWrongValue) {
    expectRefused({
        {"bad number", sheet("<text x='left' y='2'>a</text>"), "card.rpt:2: ", "left"},
        {"number without end", sheet("<line x1='inf' y1='2' x2='3' y2='4'/>"),
         "card.rpt:2: ", "inf"},
        {"missing number", sheet("<rect x='1' y='2' width='3'/>"), "card.rpt:2: ", "height"},
        {"negative size", sheet("<rect x='1' y='2' width='-3' height='1'/>"),
         "card.rpt:2: ", "negativo"},
        {"bad colour", sheet("<rect x='1' y='2' width='3' height='4' fill='gray-ish'/>"),
         "card.rpt:2: ", "gray-ish"},
        {"rotation", sheet("<g transform='rotate(90)'/>"), "card.rpt:2: ", "rotate"},
        {"scaling", sheet("<g transform='matrix(2,0,0,1,0,0)'/>"), "card.rpt:2: ", "matrix"},
        {"bad anchor", sheet("<text x='1' y='2' text-anchor='centre'>a</text>"),
         "card.rpt:2: ", "centre"},
        {"lines without end", sheet("<text x='1' y='2' inline-size='9'>a</text>"),
         "card.rpt:2: ", "data-lines"},
        {"text of no width", sheet("<text x='1' y='2' inline-size='0' data-lines='2'>a</text>"),
         "card.rpt:2: ", "inline-size"},
        {"unknown alignment", sheet("<g text-align='both'/>"), "card.rpt:2: ", "both"},
        {"bad weight", sheet("<text x='1' y='2' font-weight='fat'>a</text>"),
         "card.rpt:2: ", "fat"},
    });
}

TEST(LayoutReader, RefusesWhatHasNoEnd) {
    expectRefused({
        {"number past all paper", sheet("<line x1='1e7' y1='2' x2='3' y2='4'/>"),
         "card.rpt:2: ", "grande demais"},
        {"page of nothing", "<svg width='1e-300mm' height='1e-300mm' viewBox='0 0 1 1'/>",
         "card.rpt:1: ", "width"},
        {"page of a field", "<svg width='9000mm' height='1mm' viewBox='0 0 9000 1'/>",
         "card.rpt:1: ", "width"},
        {"viewBox of nothing", "<svg width='10mm' height='10mm' viewBox='0 0 1e-9 1e-9'/>",
         "card.rpt:1: ", "viewBox"},
        {"letters of a field", sheet("<text x='1' y='2' font-size='1e6'>a</text>"),
         "card.rpt:2: ", "font-size"},
        {"groups without end", sheet(QByteArray("<g>").repeated(200'000)),
         "card.rpt:2: ", "grupos demais"},
        {"marks without end",
         sheet(QByteArray("<line x1='1' y1='1' x2='1' y2='1'/>").repeated(20'001)),
         "card.rpt:2: ", "20000 elementos"},
        {"more rows than paper has", sheet("<g data-rows='201' data-pitch='1'/>"),
         "card.rpt:2: ", "1 a 200"},
        {"marks repeated without end",
         sheet("<g data-rows='200' data-pitch='1'>" +
               QByteArray("<line x1='1' y1='1' x2='1' y2='1'/>").repeated(101) + "</g>"),
         "card.rpt:2: ", "20000 elementos"},
        {"inks without end", sheet(manyInks()), "card.rpt:2: ", "200 letras"},
        {"4 MB", sheet(QByteArray(4 << 20, ' ')), "card.rpt: ", "4 MB"},
    });
}

TEST(LayoutReader, RefusesWhatCannotBeReadOrDrawn) {
    expectRefused({
        {"entities in entities",
         "<!DOCTYPE svg [<!ENTITY a 'aaaaaaaaaa'><!ENTITY b '&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;'>"
         "<!ENTITY c '&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;'><!ENTITY d '&c;&c;&c;&c;&c;&c;&c;&c;&c;'>]>" +
             sheet("<text x='1' y='2'>&d;</text>"),
         "card.rpt:", ""},
        {"NUL", sheet(QByteArray(1, '\0')), "card.rpt:2: ", ""},
        {"Windows-1252 where UTF-8 is due", sheet("<text x='1' y='2'>\xC7\xC3O</text>"),
         "card.rpt:", ""},
        {"what cannot be drawn", sheet("\n<path d='M 0 0'/>"), "card.rpt:3: ", "<path>"},
        {"lines in a text", sheet("<text x='1' y='2'><tspan>a</tspan><tspan>b</tspan></text>"),
         "card.rpt:2: ", "várias linhas"},
    });
}

TEST(LayoutReader, MeasuresInHundredthsOfAMillimetre) {
    const Layout layout = read(sheet(R"svg(
        <g transform="translate(100, 50)">
          <g transform="translate(20)" data-rows="31" data-pitch="45">
            <text x="10" y="30" data-width="200" text-anchor="end" data-field="nome">X</text>
          </g>
        </g>)svg"));
    EXPECT_EQ(layout.page, QSizeF(210, 297));
    EXPECT_EQ(layout.rowPitch, 400);
    ASSERT_EQ(layout.sections.size(), 1U);
    EXPECT_EQ(layout.sections[0].place.rows, 31);
    EXPECT_EQ(layout.sections[0].place.pitch, 450);
    const auto& text = std::get<LayoutText>(layout.sections[0].marks.at(0).shape);
    EXPECT_EQ(text.baseline, QPointF(1300, 800));
    EXPECT_EQ(text.width, 2000);
    EXPECT_EQ(text.anchor, LayoutText::Anchor::End);
    EXPECT_EQ(layout.inks.at(text.ink).size, 250);
}

TEST(LayoutReader, TakesWhatADrawingProgramSaves) {
    const Layout layout = read(R"svg(<?xml version="1.0"?>
        <svg xmlns="http://www.w3.org/2000/svg" xmlns:sodipodi="urn:sodipodi"
             xmlns:inkscape="urn:inkscape" width="100mm" height="50mm" viewBox="10 20 100 50"
             data-pitch="4" inkscape:version="1.3">
          <sodipodi:namedview inkscape:zoom="2"><inkscape:grid/></sodipodi:namedview>
          <title>Card</title><desc>of mine</desc><metadata><x/></metadata><defs><path/></defs>
          <g inkscape:label="Layer 1" id="layer1" style="font-size:9px">
            <text xml:space="preserve" transform="matrix(1,0,0,1,5,0)" x="10" y="25" fill="red"
                  style="font-size:2.5px;font-family:'Liberation Sans';font-weight:bold;fill:#0000ff"
                  ><tspan sodipodi:role="line" x="10" y="25">olá</tspan></text>
          </g>
        </svg>)svg");
    const auto& text = std::get<LayoutText>(layout.sections.at(0).marks.at(0).shape);
    EXPECT_EQ(text.baseline, QPointF(500, 500));
    EXPECT_EQ(text.pieces.at(0).literal, QStringLiteral("olá"));
    const Ink ink{{QStringLiteral("Liberation Sans")}, 250, 700, false, QColor(Qt::blue)};
    EXPECT_EQ(layout.inks.at(text.ink), ink);
}

TEST(LayoutReader, TellsWhichColumnsAreDrawn) {
    const DrawnColumns columns = drawnColumns(read(sheet(R"(
        <text x="1" y="2" data-template="{cnpj} - {razao}, {cnpj}"/>
        <g data-rows="2" data-pitch="9"><text x="1" y="2" data-unless="ent1" data-field="dia"/></g>
    )")));
    EXPECT_THAT(columns.once, ElementsAre(0U, 1U));
    EXPECT_THAT(columns.inRows, ElementsAre(14U, 16U));
}

TEST(LayoutReader, KnowsTheFacesOfACardAndWhereTheirRowsBegin) {
    const Layout layout = read(sheet(R"(<desc>Cartão de
            80 x 180 mm</desc>
        <g data-side="1"><g data-rows="15" data-pitch="9"><text x="1" y="2" data-field="dia"/></g></g>
        <g data-side="2" data-first="16">
          <text x="1" y="2" data-field="quinzena"></text>
          <g data-rows="16" data-pitch="9"><text x="1" y="2" data-field="dia"/></g>
        </g>)"));
    EXPECT_EQ(layout.description, QStringLiteral("Cartão de 80 x 180 mm"));
    EXPECT_EQ(layout.sides, 2);
    std::vector<std::array<int, 3>> sections;
    for (const LayoutSection& section : layout.sections)
        sections.push_back({section.place.side, section.place.first, section.place.rows});
    using Section = std::array<int, 3>;
    EXPECT_THAT(sections, ElementsAre(Section{1, 0, 15}, Section{2, 15, 0}, Section{2, 15, 16}));
    EXPECT_THAT(drawnColumns(layout).once, ::testing::IsEmpty());
    EXPECT_THAT(drawnColumns(layout).inRows, ElementsAre(14U, 25U));
}

}  // namespace
}  // namespace winvrx
