# kav_warnings: linked by every target of this project, so that its code compiles without a warning.
add_library(kav_warnings INTERFACE)
target_compile_options(kav_warnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion)
# GCC 12 sees overlapping copies in std::string's own assignment (its bug 105651); other versions do not.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(kav_warnings INTERFACE -Wno-restrict)
endif()
if(KAV_WARNINGS_AS_ERRORS)
    target_compile_options(kav_warnings INTERFACE -Werror)
endif()
