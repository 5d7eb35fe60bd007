# fish completion for gxexport(1)

command -q gxexport; or return

# The command on the line, once it is complete.
function __gxexport_command
    set -l words (commandline -opc)
    echo "$words[2]"
end

# Whether the command on the line is one of the arguments.
function __gxexport_is
    contains -- (__gxexport_command) $argv
end

# The format names with what they are for.
function __gxexport_formats
    gxexport formats 2>/dev/null | string match -rg '^[0-9]+ +(\S+ +.*?)(?:  .*)?$' | string replace -r ' +' \t
end

# The student fields that the option takes, as the help of the export command lists them.
function __gxexport_fields
    gxexport export --help 2>/dev/null |
        awk -v heading="Student fields for $argv[1]:" '$0 == heading { on = 1; next } /^$/ { on = 0 } on { gsub(/[, ]+/, "\n"); print }' |
        string match -v ''
end

# The ids of the assignments in the class files on the line, with their names.
function __gxexport_assignments
    for word in (commandline -opc)
        if string match -iqr '\.xml$' -- $word; and test -f $word
            gxexport inspect --json $word 2>/dev/null | awk '
                /^  "assignments":/ { on = 1 } /^  \]/ { on = 0 }
                on && /^      "id":/ { gsub(/[^-0-9]/, ""); id = $0 }
                on && /^      "name":/ { gsub(/^ *"name": "|",$/, ""); print id "\t" $0 }'
        end
    end
end

# The proposals on standard input, each behind what is before the last comma of the word.
function __gxexport_list
    set -l before (string match -r '^.*,' -- (commandline -ct | string replace -r '^-.*?=' ''))
    while read -l proposal
        echo "$before$proposal"
    end
end

complete -c gxexport -f
complete -c gxexport -n '__gxexport_is ""' -s V -l version -d 'Shows the version'
complete -c gxexport -n '__gxexport_is ""' -s h -l help -d 'Shows this text'
complete -c gxexport -n '__gxexport_is "" help' -a formats -d 'Lists the formats'
complete -c gxexport -n '__gxexport_is "" help' -a inspect -d 'Shows what is in a class file'
complete -c gxexport -n '__gxexport_is "" help' -a check -d 'Tells what the learning system will do with the file'
complete -c gxexport -n '__gxexport_is "" help' -a export -d 'Writes a gradebook file or the detailed report'
complete -c gxexport -n '__gxexport_is "" help' -a fill -d 'Fills the results into a downloaded gradebook'
complete -c gxexport -n '__gxexport_is "" help' -a help -d 'Explains a command'
complete -c gxexport -n '__gxexport_is inspect check export fill' -k -a '(__fish_complete_suffix .xml)'

# What completes the value of the option --NAME.
function __gxexport_values -a name
    switch $name
        case format
            echo '(__gxexport_formats)'
        case user-id
            echo '(__gxexport_fields -u)'
        case fields
            echo '(begin; printf "%s\n" all none; __gxexport_fields --fields; end | __gxexport_list)'
        case assignment
            echo '(__gxexport_assignments | __gxexport_list)'
        case map
            echo '(__gxexport_assignments | string replace \t =\t)'
        case dialect
            echo 'classic current'
        case delimiter
            echo 'comma semicolon'
        case columns
            echo 'responses points both'
        case output gradebook
            echo '(__fish_complete_path)'
        case output-dir
            echo '(__fish_complete_directories)'
    end
end

# The options of each command, as its help has them.
for command in formats inspect check export fill
    gxexport $command --help 2>/dev/null | awk '
        function flush() { if (names != "") { sub(/\. .*|\.$/, "", text); print names "|" value "|" text }; names = text = "" }
        /^$/ { flush() }
        /^  -/ {
            flush(); names = $1; value = $2 ~ /^[A-Z=]+$/
            sub(/^  [^ ]+( [A-Z=]+)?( \.\.\.)?( \(required\))?/, "")
        }
        names != "" { sub(/^ +/, ""); text = text (text != "" ? " " : "") $0 }
        ' | while read -l -d '|' names value text
        set -l name (string replace -r '^.*--' '' -- $names)
        set -l options -c gxexport -n "__gxexport_is $command" -l $name -d $text
        string match -qr '^-[^-]' -- $names; and set -a options -s (string sub -s 2 -l 1 -- $names)
        test $value = 0; or set -a options -x -a (__gxexport_values $name | string collect -a)
        complete $options
    end
end
