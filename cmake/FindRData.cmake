# The CMake files of Debian's librdata-dev name one version of the library by its full path.
find_path(RData_INCLUDE_DIR rdata/rdata.h)
find_library(RData_LIBRARY rdata)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(RData REQUIRED_VARS RData_LIBRARY RData_INCLUDE_DIR)
if(RData_FOUND AND NOT TARGET RData::RData)
    add_library(RData::RData UNKNOWN IMPORTED)
    set_target_properties(
        RData::RData PROPERTIES IMPORTED_LOCATION "${RData_LIBRARY}"
                                INTERFACE_INCLUDE_DIRECTORIES "${RData_INCLUDE_DIR}")
endif()
