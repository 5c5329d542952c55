# Installs BUILD into an empty PREFIX and looks for what must be there.
file(REMOVE_RECURSE ${PREFIX})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${PREFIX}
                OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
file(GLOB_RECURSE installed RELATIVE ${PREFIX} ${PREFIX}/*)
foreach(wanted
        "bin/dochtml-replay"
        "lib[^;]*/libdochtml.a"
        "lib[^;]*/dochtml/libdochtmlcom.so"
        "lib[^;]*/cmake/dochtml/dochtmlConfig.cmake"
        "lib[^;]*/pkgconfig/dochtml.pc"
        "lib[^;]*/pkgconfig/dochtml_client.pc"
        "bin/dochtml-register"
        "bin/dochtml-settings"
        "share/man/man1/dochtml-replay.1"
        "share/bash-completion/completions/dochtml-replay"
        "share/zsh/vendor-completions/_dochtml-replay"
        "include/dochtml/client.h"
        "include/dochtml/driver/doc_html.h"
        "share/dochtml/default.css"
        "share/dochtml/navigator/order.txt"
        "share/doc/dochtml/README.md"
        "share/doc/dochtml/CHANGELOG.md"
        "share/doc/dochtml/docs/compatibility.md"
        "share/doc/dochtml/examples/hosts/hello.cpp")
    if(NOT ";${installed};" MATCHES ";${wanted};")
        message(SEND_ERROR "not installed: ${wanted}")
    endif()
endforeach()
