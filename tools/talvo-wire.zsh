#compdef talvo-wire
# Completes talvo-wire in zsh with the words that the tool itself gives; where it gives none, with file names.
local -a found
found=(${(f)"$("${words[1]}" complete "${(@)words[2,CURRENT]}" 2> /dev/null)"})
if (( ${#found} )); then
    compadd -- "${found[@]}"
else
    _files
fi
