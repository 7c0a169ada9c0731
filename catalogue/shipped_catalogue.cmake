# shipped_catalogue(TABLE FILE): writes the catalogue FILE that is made of TABLE, which says itself
# how it is read.

# Takes a line apart into the list "row", without the word that it begins with.
function(read_row line)
    string(REGEX REPLACE " *[|] *" ";" row "${line}")
    list(REMOVE_AT row 0)
    set(row "${row}" PARENT_SCOPE)
endfunction()

function(shipped_catalogue table file)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${table})
    file(STRINGS ${table} lines REGEX "^flags ")
    foreach(line IN LISTS lines)
        read_row("${line}")
        list(POP_FRONT row kind)
        set(flags_${kind} "${row}")
    endforeach()
    set(is_cross_here no)
    set(is_cross_elsewhere yes)
    set(is_cross_windows yes)
    if(WIN32)
        set(is_cross_windows no)
    endif()

    file(STRINGS ${table} lines REGEX "^compiler ")
    foreach(line IN LISTS lines)
        read_row("${line}")
        list(GET row 0 family)
        list(GET row 1 name)
        list(GET row 2 language)
        list(GET row 3 command)
        list(GET row 4 kind)
        list(GET row 5 runs)
        foreach(column IN ITEMS output define object extension order is_small)
            list(POP_FRONT flags_${kind} ${column})
            list(APPEND flags_${kind} "${${column}}")
        endforeach()
        list(APPEND families "<CompilerFamily>${family}</CompilerFamily>")
        string(APPEND entries "
 <Compiler>
  <Name>${name} - ${language}</Name>
  <Family>${family}</Family>
  <ExeCommand>${command}</ExeCommand>
  <CrossCompiler>${is_cross_${runs}}</CrossCompiler>
  <OutputFlag>${output}</OutputFlag>
  <DefineFlag>${define}</DefineFlag>
  <ObjectFlag>${object}</ObjectFlag>
  <ObjectFileExtension>${extension}</ObjectFileExtension>
  <Order>${order} </Order>
  <ReduceFileSize>${is_small}</ReduceFileSize>
  <CompilerDefines></CompilerDefines>
  <CompilerSwitches></CompilerSwitches>
  <Template></Template>
  <ForceIncludeFile></ForceIncludeFile>
  <SubHeaders></SubHeaders>
 </Compiler>
")
    endforeach()
    list(REMOVE_DUPLICATES families)
    list(JOIN families "\n" families)
    file(CONFIGURE OUTPUT ${file} CONTENT "${families}\n${entries}" @ONLY)
endfunction()
