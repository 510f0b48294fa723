#include "app/open/FileKinds.h"

#include <QCoreApplication>

namespace {

struct FileKinds
{
    Q_DECLARE_TR_FUNCTIONS(FileKinds)
};

}  // namespace

namespace filekinds {

DialogTexts dialogTexts(FileKind kind)
{
    switch (kind) {
    case FileKind::Sas:
        return {FileKinds::tr("Open SAS Datasets"),
                FileKinds::tr("SAS Data Files (*.sas7bdat);; SAS Transport Files (*.xpt)")};
    case FileKind::DatasetJson:
        return {FileKinds::tr("Open Dataset-JSON Files"),
                FileKinds::tr("Dataset-JSON Files (*.json *.ndjson)")};
    case FileKind::R:
        return {
            FileKinds::tr("Open R Datasets"),
            FileKinds::tr("R Data Files (*.rds);; R Data Files (*.rdata);; R Data Files (*.rda)")};
    case FileKind::Spss:
        return {FileKinds::tr("Open SPSS Datasets"), FileKinds::tr("SPSS Data Files (*.sav)")};
    case FileKind::Stata:
        return {FileKinds::tr("Open Stata Datasets"), FileKinds::tr("Stata Data Files (*.dta)")};
    case FileKind::Csv:
        return {FileKinds::tr("Open CSV Files"), FileKinds::tr("CSV (Comma delimited) (*.csv)")};
    }
    return {};
}

}  // namespace filekinds
