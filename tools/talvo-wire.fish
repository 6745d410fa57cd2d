# Completes talvo-wire in fish with the words that the tool itself gives, and with file names.
function __talvo_wire_complete
    set -l typed (commandline --tokenize --cut-at-cursor --current-process)
    talvo-wire complete $typed[2..-1] (commandline --current-token --cut-at-cursor) 2> /dev/null
end
complete --command talvo-wire --arguments '(__talvo_wire_complete)'
