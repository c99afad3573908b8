# Installs what belongs to the user once it is there: preferences that exist stay, and so does a script `asm` that
# is not the one to be installed, which comes to lie beside it then.
set(folder "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}")
if(NOT EXISTS "${folder}/prefs.ini")
    file(INSTALL "${KAV_FIRST_PREFERENCES}" DESTINATION "${CMAKE_INSTALL_PREFIX}")
endif()

set(name asm)
if(EXISTS "${folder}/asm")
    file(SHA256 "${KAV_SCRIPT}" new)
    file(SHA256 "${folder}/asm" old)
    if(NOT new STREQUAL old)
        set(name asm.new)
        message(STATUS "Your script ${folder}/asm stays as it is; the new one is asm.new")
    endif()
endif()
file(INSTALL "${KAV_SCRIPT}" DESTINATION "${CMAKE_INSTALL_PREFIX}" RENAME ${name} USE_SOURCE_PERMISSIONS)
