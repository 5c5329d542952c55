# Every target of the project is built with these; a warning is an error.
add_library(dochtml_warnings INTERFACE)
target_compile_options(dochtml_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
