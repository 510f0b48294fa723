#include "analysis/panels/CellText.h"

#include "data/StatDataset.h"
#include "data/StoredValue.h"

#include <QCoreApplication>
#include <QStringList>

namespace {

struct CellText
{
    Q_DECLARE_TR_FUNCTIONS(CellText)
};

}  // namespace

namespace celltext {

QString summary(const StatDataset& dataset, int observation, int variable)
{
    const auto at = static_cast<std::size_t>(variable);
    const bool isText = dataset.isCharacter(variable);
    QString value = QString::fromStdString(storedvalue::text(dataset, observation, variable));
    if (isText) {
        value.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
        value = u'"' + value.replace(u'\n', QChar(0x21B5)).replace(u'\r', QChar(0x21B5)) + u'"';
    }
    QStringList parts{QString::fromStdString(dataset.names()[at]),
                      QString::fromStdString(dataset.labels()[at]).simplified(),
                      isText ? CellText::tr("Character") : CellText::tr("Numeric"),
                      QString::fromStdString(dataset.writtenFormat(variable)), value};
    parts.removeAll(QString());
    return parts.join(QStringLiteral("  \u00B7  "));
}

QString whole(const StatDataset& dataset, int observation, int variable)
{
    const QString stored =
        QString::fromStdString(storedvalue::text(dataset, observation, variable));
    const QString shown = QString::fromStdString(dataset.cellText(observation, variable));
    return dataset.isCharacter(variable) || shown == stored
        ? stored
        : shown + u'\n' + CellText::tr("Stored value: %1").arg(stored);
}

}  // namespace celltext
