# kav_warnings: linked by every target of this project, so that its code compiles without a warning.
add_library(kav_warnings INTERFACE)
target_compile_options(kav_warnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion)
if(KAV_WARNINGS_AS_ERRORS)
    target_compile_options(kav_warnings INTERFACE -Werror)
endif()
