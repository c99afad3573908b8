# The sanitize preset: every target of the project runs under the address and undefined-behaviour sanitizers.
if(KAV_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
