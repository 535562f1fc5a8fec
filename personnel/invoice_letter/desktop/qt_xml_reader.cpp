#include "personnel/invoice_letter/desktop/qt_xml_reader.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/values/faults.h"

#include <QByteArray>
#include <QXmlStreamReader>

#include <vector>

namespace winvrx {

namespace {

Fault notRead(const std::string& cause, const std::string& sentence) {
    return {"event file: " + cause, sentence};
}

Fault malformed(const QXmlStreamReader& xml) {
    return notRead(xml.errorString().toStdString(), "O arquivo não é um XML bem formado (linha " +
                                                        std::to_string(xml.lineNumber()) + ").");
}

}  // namespace

void QtXmlReader::read(const std::string& bytes,
                       const std::function<void(const XmlElement&)>& take) const {
    QXmlStreamReader xml(QByteArray::fromRawData(bytes.data(), static_cast<int>(bytes.size())));
    std::vector<XmlElement> open;
    std::size_t count = 0;
    while (!xml.atEnd()) {
        switch (xml.readNext()) {
            case QXmlStreamReader::DTD:
                throw notRead("type definition",
                              "O arquivo XML tem uma definição de tipos (DTD), que um evento de "
                              "nota fiscal não tem.");
            case QXmlStreamReader::StartElement:
                if (++count > kMostElements || open.size() >= kDeepestElement)
                    throw notRead("too many elements",
                                  "O arquivo XML tem elementos demais para um evento de nota "
                                  "fiscal.");
                open.push_back({toUtf8(xml.name().toString()),
                                toUtf8(xml.attributes().value(QLatin1String("Id")).toString()),
                                {}});
                break;
            case QXmlStreamReader::Characters:
                if (!open.empty()) open.back().text += toUtf8(xml.text().toString());
                break;
            case QXmlStreamReader::EndElement:
                take(open.back());
                open.pop_back();
                break;
            default:
                break;
        }
    }
    if (xml.hasError()) throw malformed(xml);
}

}  // namespace winvrx
