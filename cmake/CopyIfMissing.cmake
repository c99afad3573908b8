# Copies FROM to TO unless TO exists.
if(NOT EXISTS "${TO}")
    configure_file("${FROM}" "${TO}" COPYONLY)
endif()
