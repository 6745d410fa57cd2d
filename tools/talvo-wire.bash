# Completes talvo-wire in bash with the words that the tool itself gives; where it gives none, bash completes file names.
_talvo_wire()
{
    mapfile -t COMPREPLY < <("$1" complete "${COMP_WORDS[@]:1:COMP_CWORD}" 2> /dev/null)
}
complete -o default -F _talvo_wire talvo-wire
