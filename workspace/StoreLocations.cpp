#include "workspace/StoreLocations.h"

#include <QStandardPaths>

StoreLocations StoreLocations::standard()
{
    return {QStandardPaths::writableLocation(QStandardPaths::HomeLocation),
            QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)};
}
