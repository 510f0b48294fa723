#pragma once

#include "grid/opened/LibraryFilter.h"

#include <QString>

/// What all open datasets share.
struct OpenDatasets
{
    LibraryFilter libraryFilter;
    QString uniqueVarName = QStringLiteral("USUBJID");  ///< the variable that identifies a subject
};
