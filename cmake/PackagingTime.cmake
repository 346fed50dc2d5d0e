# Read by cpack: the files in the package are as old as its changelog says, so that one tree gives one
# package whenever it is made.

if(NOT DEFINED ENV{SOURCE_DATE_EPOCH})
    execute_process(COMMAND dpkg-parsechangelog "-l${CPACK_VANTRELL_CHANGELOG}" -STimestamp
        OUTPUT_VARIABLE timestamp OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    set(ENV{SOURCE_DATE_EPOCH} "${timestamp}")
endif()
