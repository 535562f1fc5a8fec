#include "report/desktop/page_spool.h"

#include "foundation/values/faults.h"

#include <QDataStream>

namespace winvrx {

PageSpool::PageSpool() {
    if (!file_.open()) fail();
}

void PageSpool::append(const ReportRows& rows) {
    file_.seek(end_);
    QDataStream out(&file_);
    out << static_cast<quint32>(rows.size());
    for (const ReportRow& row : rows) {
        out << static_cast<quint32>(row.size());
        for (const std::string& value : row)
            out << QByteArray::fromStdString(value);
    }
    if (out.status() != QDataStream::Ok || !file_.flush()) fail();
    starts_.push_back(end_);
    end_ = file_.pos();
}

ReportRows PageSpool::at(std::size_t index) {
    file_.seek(starts_.at(index));
    QDataStream in(&file_);
    const auto count = [&in] {
        quint32 count = 0;
        in >> count;
        return in.status() == QDataStream::Ok ? count : 0;
    };
    ReportRows rows(count());
    QByteArray value;
    for (ReportRow& row : rows) {
        row.resize(count());
        for (std::string& column : row) {
            in >> value;
            column = value.toStdString();
        }
    }
    if (in.status() != QDataStream::Ok) fail();
    return rows;
}

void PageSpool::fail() const {
    throw Fault("preview file: " + file_.errorString().toStdString(),
                "Não há espaço para a visualização.");
}

}  // namespace winvrx
