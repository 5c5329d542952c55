"""What differs between systems, in one place for type checkers and readers alike."""

import sys

if sys.platform == "win32":
    from .windows import (
        CODE_PAGE,
        LIBRARY,
        LIBRARY_DIRECTORIES,
        METHOD,
        free_text,
        native_path,
        open_library,
        registered_library,
        user_settings,
    )
else:
    from .posix import (
        CODE_PAGE,
        LIBRARY,
        LIBRARY_DIRECTORIES,
        METHOD,
        free_text,
        native_path,
        open_library,
        registered_library,
        user_settings,
    )

__all__ = [
    "CODE_PAGE",
    "LIBRARY",
    "LIBRARY_DIRECTORIES",
    "METHOD",
    "free_text",
    "native_path",
    "open_library",
    "registered_library",
    "user_settings",
]
