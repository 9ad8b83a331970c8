# Bash completion for kesto: sub-commands, options, message names, files.

_kesto()
{
    if [[ ${COMP_WORDS[1]} == --names ]] && ((COMP_CWORD > 2)); then   # may stand before the sub-command
        COMP_WORDS=("${COMP_WORDS[0]}" "${COMP_WORDS[@]:3}")
        ((COMP_CWORD -= 2))
    fi
    local program=${COMP_WORDS[0]} command=${COMP_WORDS[1]} word=${COMP_WORDS[COMP_CWORD]} i words=0
    local before=${COMP_WORDS[COMP_CWORD - 1]}
    COMPREPLY=()
    if ((COMP_CWORD == 1)); then
        mapfile -t COMPREPLY < <(compgen -W "explain decode encode diff summary compare list show size --names --help --version" -- "$word")
        return
    fi
    case $before in
        --color) mapfile -t COMPREPLY < <(compgen -W "auto always never" -- "$word"); return ;;
        --input-format) mapfile -t COMPREPLY < <(compgen -W "auto bytes hex" -- "$word"); return ;;
        --form) mapfile -t COMPREPLY < <(compgen -W "sent compact fixed" -- "$word"); return ;;
        --pointers) mapfile -t COMPREPLY < <(compgen -W "32 64" -- "$word"); return ;;
        --names) [[ $command == list ]] || { mapfile -t COMPREPLY < <(compgen -f -- "$word"); return; } ;;
        -o | --output | --html | --pcap) mapfile -t COMPREPLY < <(compgen -f -- "$word"); return ;;
        --message)
            mapfile -t COMPREPLY < <(compgen -W "$("$program" list --names 2>/dev/null)" -- "$word")
            return
            ;;
        --memory | --packet) return ;;
        --hex) [[ $command == encode ]] || return ;;
    esac
    if [[ $word == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$("$program" "$command" --help 2>/dev/null |
            grep -oE '^ +-[-a-z,]+' | tr ',' ' ') --names" -- "$word")
        return
    fi
    if [[ $command == summary || $command == compare ]]; then
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
        return
    fi
    for ((i = 2; i < COMP_CWORD; ++i)); do
        case ${COMP_WORDS[i]} in
            --names) [[ $command == list ]] || ((++i)) ;;
            --color | --input-format | --form | --pointers | -o | --output | --html | --memory | --message | --packet)
                ((++i))
                ;;
            --pcap)   # replaces message and file
                [[ $command != diff ]] || mapfile -t COMPREPLY < <(compgen -f -- "$word")
                return
                ;;
            --hex) [[ $command == encode ]] || ((++i)) ;;
            --raw) ((++words)) ;;   # replaces the message
            -?*) ;;
            *) ((++words)) ;;
        esac
    done
    if ((words == 0)); then
        mapfile -t COMPREPLY < <(compgen -W "$("$program" list --names 2>/dev/null)" -- "$word")
    else
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
    fi
}

complete -o filenames -F _kesto kesto
