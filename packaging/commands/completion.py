"""Completion for bash and zsh, from the options of a tool."""

from tool_help import Option, Tool

# The value of the option that sets a setting.
SETTING = "GROUP.NAME=VALUE"

BASH = """\
# bash completion for {name}. Made from its table of options.
_{function}()
{{
    local cur=${{COMP_WORDS[COMP_CWORD]}} prev=${{COMP_WORDS[COMP_CWORD-1]}}
    # "--option=value" comes in three words.
    if [[ $cur == = ]]; then
        cur=
    elif [[ $prev == = ]]; then
        prev=${{COMP_WORDS[COMP_CWORD-2]}}
    fi
    # Without words of our own, bash offers files.
    compopt -o default 2>/dev/null
    case $prev in
{cases}    esac
    if [[ $cur == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W '{options}' -- "$cur")
        return
    fi
{commands}}}
complete -F _{function} {name}
"""
# Options with a value of their own kind: no files.
BASH_VALUE = """\
        {names})
            compopt +o default 2>/dev/null
            return ;;
"""
BASH_FILE = """\
        {names})
            return ;;
"""
BASH_DIRECTORY = """\
        {names})
            mapfile -t COMPREPLY < <(compgen -d -- "$cur")
            return ;;
"""
BASH_ASSIGNED = """\
        {names})
            mapfile -t COMPREPLY < <(compgen -S = -W '{settings}' -- "$cur")
            compopt -o nospace 2>/dev/null
            return ;;
"""
# The first word that is a command decides what the words after it are.
BASH_COMMANDS = """\
    local word
    for word in "${{COMP_WORDS[@]:1:COMP_CWORD-1}}"; do
        case $word in
            get)
                mapfile -t COMPREPLY < <(compgen -W '{settings}' -- "$cur")
                return ;;
            set)
                # The value of a setting may be a file.
                if [[ ${{COMP_WORDS[COMP_CWORD]}} != = && ${{COMP_WORDS[COMP_CWORD-1]}} != = ]]; then
                    mapfile -t COMPREPLY < <(compgen -S = -W '{settings}' -- "$cur")
                    compopt -o nospace 2>/dev/null
                fi
                return ;;
            {names_or})
                compopt +o default 2>/dev/null
                return ;;
        esac
    done
    mapfile -t COMPREPLY < <(compgen -W '{names}' -- "$cur")
"""

ZSH = """\
#compdef {name}
# zsh completion for {name}. Made from its table of options.
local -a settings equals
settings=({settings})
(( ${{words[(I)set]}} )) && equals=(-S=)
_arguments -s -S \\
{lines}
"""


def function_name(tool: Tool) -> str:
    return tool.name.replace("-", "_")


def bash_case(option: Option, settings: list[str]) -> str:
    """What may follow an option."""
    if not option.value:
        return ""
    shape = BASH_VALUE
    if option.value == SETTING:
        shape = BASH_ASSIGNED
    elif option.takes_directory:
        shape = BASH_DIRECTORY
    elif option.takes_file:
        shape = BASH_FILE
    return shape.format(names="|".join(option.names), settings=" ".join(settings))


def bash_commands(tool: Tool, settings: list[str]) -> str:
    if not tool.commands:
        return ""
    names = [command.name for command in tool.commands]
    others = "|".join(name for name in names if name not in ("get", "set"))
    return BASH_COMMANDS.format(names=" ".join(names), names_or=others, settings=" ".join(settings))


def bash(tool: Tool, settings: list[str]) -> str:
    return BASH.format(
        name=tool.name,
        function=function_name(tool),
        cases="".join(bash_case(option, settings) for option in tool.options),
        options=" ".join(name for option in tool.options for name in option.names),
        commands=bash_commands(tool, settings),
    )


def zsh_text(text: str) -> str:
    """A text inside single quotes and brackets."""
    for sign in "\\[]:":
        text = text.replace(sign, "\\" + sign)
    return text.replace("'", "'\\''")


def zsh_action(option: Option) -> str:
    if not option.value:
        return ""
    action = ""
    if option.takes_file:
        action = "_files"
    elif option.takes_directory:
        action = "_files -/"
    elif option.value == SETTING:
        action = "compadd -S= -a settings"
    return f":{zsh_text(option.value)}:{action}"


def zsh_option(option: Option) -> str:
    """One line of `_arguments` for each name; the names of an option exclude each other."""
    repeatable = "(repeatable)" in option.meaning
    mark = "*" if repeatable else f"({' '.join(option.names)})"
    lines = []
    for name in option.names:
        join = "" if not option.value else ("=" if name.startswith("--") else "+")
        text = f"{mark}{name}{join}[{zsh_text(option.meaning)}]{zsh_action(option)}"
        lines.append(f"    '{text}' \\")
    return "\n".join(lines)


def zsh_operands(tool: Tool) -> str:
    if not tool.commands:
        return "    '*:file:_files'"
    commands = " ".join(command.name for command in tool.commands)
    return f"    '1:command:({commands})' \\\n    '*:setting:compadd $equals -a settings'"


def zsh(tool: Tool, settings: list[str]) -> str:
    lines = [*map(zsh_option, tool.options), zsh_operands(tool)]
    return ZSH.format(name=tool.name, settings=" ".join(settings), lines="\n".join(lines))
