# Completes talvo-wire in bash: commands, options, protocols, and the records that the tool itself lists. Where this has
# nothing to offer, bash completes file names.
_talvo_wire()
{
    local tool=$1 current=$2 previous=$3 command=${COMP_WORDS[1]} words='' position=0 i

    if [ "$COMP_CWORD" -eq 1 ]; then
        words='list print convert transcode --help'
    elif [[ $current == -* ]]; then
        words=$("$tool" "$command" --help 2> /dev/null | sed -n '/^Options:/,/^$/s/^  .*\(--[a-z-]*\).*/\1/p')
    else
        case $previous in
            -p | --protocol | --to) words='binary compact json' ;;
            --color) words='auto always never' ;;
            -o | --output | --max-*) ;;
            *)
                # Which positional argument this is; each option but --json takes a value.
                for ((i = 2; i < COMP_CWORD; ++i)); do
                    case ${COMP_WORDS[i]} in
                        --json) ;;
                        -?*) ((++i)) ;;
                        *) ((++position)) ;;
                    esac
                done
                if [ "$position" -eq 0 ] && [ "$command" = convert ]; then
                    words=$("$tool" list | awk '$3 == "both" { print $1 }')
                elif [ "$position" -eq 0 ] && [ "$command" != list ]; then
                    words=$("$tool" list | awk '{ print $1 }')
                fi
                ;;
        esac
    fi
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
}
complete -o default -F _talvo_wire talvo-wire
