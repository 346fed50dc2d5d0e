# Read by cpack: dates the files in the package by its changelog, so that builds are reproducible.

if(NOT DEFINED ENV{SOURCE_DATE_EPOCH})
    execute_process(COMMAND dpkg-parsechangelog "-l${CPACK_VANTRELL_CHANGELOG}" -STimestamp
        OUTPUT_VARIABLE timestamp OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    set(ENV{SOURCE_DATE_EPOCH} "${timestamp}")
endif()
