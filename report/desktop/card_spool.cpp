#include "report/desktop/card_spool.h"

#include "foundation/values/faults.h"

#include <QDataStream>

namespace winvrx {

CardSpool::CardSpool() {
    if (!file_.open()) fail();
}

void CardSpool::append(const CardText& rows) {
    file_.seek(end_);
    QDataStream out(&file_);
    out << static_cast<quint32>(rows.size());
    for (const CardTextRow& row : rows)
        for (const QString& value : row)
            out << value.toUtf8();
    if (out.status() != QDataStream::Ok || !file_.flush()) fail();
    starts_.push_back(end_);
    end_ = file_.pos();
}

CardText CardSpool::at(std::size_t index) {
    file_.seek(starts_.at(index));
    QDataStream in(&file_);
    quint32 count = 0;
    in >> count;
    CardText rows(in.status() == QDataStream::Ok ? count : 0);
    QByteArray value;
    for (CardTextRow& row : rows)
        for (QString& column : row) {
            in >> value;
            column = QString::fromUtf8(value);
        }
    if (in.status() != QDataStream::Ok) fail();
    return rows;
}

void CardSpool::fail() const {
    throw Fault("preview file: " + file_.errorString().toStdString(),
                "Não há espaço para a visualização.");
}

}  // namespace winvrx
