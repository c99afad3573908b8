# Fills the package: the application folder goes below lib, what the desktop is told to its own places.
function(install_component component folder)
    execute_process(
        COMMAND ${CMAKE_COMMAND} -E env --unset=DESTDIR
                ${CMAKE_COMMAND} --install ${CPACK_KAV_BUILD_FOLDER} --strip --component ${component}
                --prefix ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr${folder}
        COMMAND_ERROR_IS_FATAL ANY)
endfunction()

install_component(folder /lib/kav-compiler)
install_component(desktop "")
