#include "grid/GridEmptiness.h"

#include "data/StatDataset.h"
#include "grid/GridCommands.h"
#include "grid/opened/OpenDataset.h"

#include <QCoreApplication>
#include <QStringList>

namespace {

struct GridEmptiness
{
    Q_DECLARE_TR_FUNCTIONS(GridEmptiness)
};

QString keyOf(GridCommand command)
{
    return gridcommands::entryOf(command).allKeys().front().text();
}

/// A filter is named where to clear it alone brings rows back, and both where only both do.
QString filtersText(const OpenDataset& opened)
{
    const bool libraryShowsAny = opened.dataset().libraryFilterMask().any();
    const bool datasetShowsAny = opened.dataset().datasetFilterMask().any();
    QStringList lines{GridEmptiness::tr("No row meets the filters.")};
    if (libraryShowsAny || !datasetShowsAny) {
        lines << GridEmptiness::tr(
                     "%1 takes the last step of the dataset filter back, %2 clears it.")
                     .arg(keyOf(GridCommand::UndoDatasetFilter),
                          keyOf(GridCommand::ClearDatasetFilter));
    }
    if (datasetShowsAny || !libraryShowsAny) {
        lines << GridEmptiness::tr("%1 clears the library filter.")
                     .arg(keyOf(GridCommand::ClearLibraryFilter));
    }
    return lines.join(u'\n');
}

}  // namespace

namespace gridemptiness {

QString text(const OpenDataset& opened)
{
    const StatDataset& dataset = opened.dataset();
    if (dataset.variableCount() == 0) {
        return GridEmptiness::tr("This dataset has no variables.");
    }
    if (dataset.observationCount() == 0) {
        return GridEmptiness::tr("This dataset has no observations.");
    }
    if (opened.selectedCount() == 0) {
        return filtersText(opened);
    }
    return opened.variables().shownCount() > 0
        ? QString()
        : GridEmptiness::tr("All variables are hidden.\n%1 shows them again.")
              .arg(keyOf(GridCommand::UnhideVariables));
}

}  // namespace gridemptiness
