# Debian's libcsv-dev ships neither a CMake nor a pkg-config file.
find_path(LibCsv_INCLUDE_DIR csv.h)
find_library(LibCsv_LIBRARY csv)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(LibCsv REQUIRED_VARS LibCsv_LIBRARY LibCsv_INCLUDE_DIR)
if(LibCsv_FOUND AND NOT TARGET LibCsv::LibCsv)
    add_library(LibCsv::LibCsv UNKNOWN IMPORTED)
    set_target_properties(
        LibCsv::LibCsv PROPERTIES IMPORTED_LOCATION "${LibCsv_LIBRARY}"
                                      INTERFACE_INCLUDE_DIRECTORIES "${LibCsv_INCLUDE_DIR}")
endif()
