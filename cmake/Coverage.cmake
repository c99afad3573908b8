# The coverage preset: every run of a program or test counts the lines that it comes by.
option(KAV_COVERAGE "Count the lines that tests run" OFF)
if(KAV_COVERAGE)
    if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        message(FATAL_ERROR "KAV_COVERAGE needs g++, whose counts gcovr reads")
    endif()
    # Lines stay what they are in the source, and the long tests end in time.
    add_compile_options(--coverage -Og)
    add_link_options(--coverage)
endif()
