"""Completion for bash and zsh, from the options of a tool."""

from tool_help import Option, Tool

BASH = """\
# bash completion for {name}. Made from its table of options.
_{function}()
{{
    local cur=${{COMP_WORDS[COMP_CWORD]}} prev=${{COMP_WORDS[COMP_CWORD-1]}}
    # "--set Group.Name=" is split at the "=".
    if [[ $cur == = || $prev == = ]]; then
        return
    fi
    compopt -o default 2>/dev/null
    case $prev in
{cases}
    esac
    if [[ $cur == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W '{options}' -- "$cur")
{commands}    fi
}}
complete -F _{function} {name}
"""
BASH_COMMANDS = """\
    elif ((COMP_CWORD == 1)); then
        mapfile -t COMPREPLY < <(compgen -W '{names}' -- "$cur")
"""
BASH_SETTINGS = """\
            mapfile -t COMPREPLY < <(compgen -S '{suffix}' -W '{names}' -- "$cur")
            {more}return ;;
"""

ZSH = """\
#compdef {name}
# zsh completion for {name}. Made from its table of options.
_arguments -s -S \\
{lines}
"""


def function_name(tool: Tool) -> str:
    return tool.name.replace("-", "_")


def bash_case(option: Option, settings: list[str]) -> str | None:
    """What may follow an option that takes a value."""
    head = f"        {'|'.join(option.names)})\n"
    if option.value == "GROUP.NAME=VALUE":
        more = "compopt -o nospace 2>/dev/null\n            "
        return head + BASH_SETTINGS.format(suffix="=", names=" ".join(settings), more=more)
    if option.takes_directory:
        return head + '            mapfile -t COMPREPLY < <(compgen -d -- "$cur")\n            return ;;\n'
    if option.value:
        return head + "            return ;;\n"
    return None


def bash_cases(tool: Tool, settings: list[str]) -> str:
    cases = [bash_case(option, settings) for option in tool.options]
    if tool.commands:
        names = " ".join(settings)
        cases.append("        get)\n" + BASH_SETTINGS.format(suffix="", names=names, more=""))
        more = "compopt -o nospace 2>/dev/null\n            "
        cases.append("        set)\n" + BASH_SETTINGS.format(suffix="=", names=names, more=more))
    return "".join(case for case in cases if case).rstrip("\n")


def bash(tool: Tool, settings: list[str]) -> str:
    names = [name for option in tool.options for name in option.names]
    commands = " ".join(command.name for command in tool.commands)
    return BASH.format(
        name=tool.name,
        function=function_name(tool),
        cases=bash_cases(tool, settings),
        options=" ".join(names),
        commands=BASH_COMMANDS.format(names=commands) if commands else "",
    )


def zsh_text(text: str) -> str:
    """A text inside single quotes and brackets."""
    for sign in "\\[]:":
        text = text.replace(sign, "\\" + sign)
    return text.replace("'", "'\\''")


def zsh_action(option: Option, settings: list[str]) -> str:
    if not option.value:
        return ""
    action = ""
    if option.takes_file:
        action = "_files"
    elif option.takes_directory:
        action = "_files -/"
    elif option.value == "GROUP.NAME=VALUE":
        action = f"compadd -S= {' '.join(settings)}"
    return f":{zsh_text(option.value)}:{action}"


def zsh_option(option: Option, settings: list[str]) -> str:
    """One line of `_arguments` for each name; the names of an option exclude each other."""
    repeatable = "(repeatable)" in option.meaning
    mark = "*" if repeatable else f"({' '.join(option.names)})"
    lines = []
    for name in option.names:
        join = "" if not option.value else ("=" if name.startswith("--") else "+")
        text = f"{mark}{name}{join}[{zsh_text(option.meaning)}]{zsh_action(option, settings)}"
        lines.append(f"    '{text}' \\")
    return "\n".join(lines)


def zsh_operands(tool: Tool, settings: list[str]) -> str:
    if not tool.commands:
        return "    '*:file:_files'"
    commands = " ".join(command.name for command in tool.commands)
    return f"    '1:command:({commands})' \\\n    '*:setting:({' '.join(settings)})'"


def zsh(tool: Tool, settings: list[str]) -> str:
    lines = [zsh_option(option, settings) for option in tool.options]
    return ZSH.format(name=tool.name, lines="\n".join([*lines, zsh_operands(tool, settings)]))
