#include "grid/GridCounters.h"

#include "data/StatDataset.h"

#include <QCoreApplication>

namespace {

struct GridCounters
{
    Q_DECLARE_TR_FUNCTIONS(GridCounters)
};

}  // namespace

namespace gridcounters {

QString rows(const StatDataset* dataset, int shownRows)
{
    if (dataset == nullptr || dataset->observationCount() < 0) {
        return GridCounters::tr("Rows: NA/NA");
    }
    return GridCounters::tr("Rows: %1/%2").arg(shownRows).arg(dataset->observationCount());
}

QString variables(const StatDataset* dataset)
{
    if (dataset == nullptr || dataset->variableCount() < 0) {
        return GridCounters::tr("Vars: NA/NA");
    }
    return GridCounters::tr("Vars: %1/%2")
        .arg(dataset->visibleVariables().count())
        .arg(dataset->variableCount());
}

}  // namespace gridcounters
