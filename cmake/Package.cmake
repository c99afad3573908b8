# The Debian package: the application folder as /usr/lib/kav-compiler, from which each user gets one of their own,
# and what the desktop is told.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kav-compiler)
set(CPACK_PACKAGE_CONTACT "KAV Compiler <tamsin.orrel@kav-compiler.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "editor and build front end for Z80 programs on the TI-83")
set(CPACK_PACKAGE_DESCRIPTION
    "Writes, compiles and saves programs for the TI-83 and TI-83 Plus graphing
calculators: templates for the calculator's shells, an assembler, a task list
that leads to errors, and editors for sprites, buttons and strings.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_CMAKE_PROJECTS "")
set(CPACK_INSTALL_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/FillPackage.cmake)
set(CPACK_KAV_BUILD_FOLDER ${CMAKE_BINARY_DIR})
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "desktop-file-utils, shared-mime-info, xdg-utils")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
