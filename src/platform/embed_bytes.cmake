# zel_embed_bytes(input output): makes a file that a C++ array can include between its braces, the
# bytes of `input` as numbers. Also run as a script, with -DINPUT and -DOUTPUT.
if(CMAKE_SCRIPT_MODE_FILE)
    file(READ ${INPUT} hex HEX)
    string(REGEX REPLACE "(................................)" "\\1\n" hex "${hex}")
    string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," hex "${hex}")
    file(WRITE ${OUTPUT} "${hex}\n")
    return()
endif()

set(ZEL_EMBED_SCRIPT ${CMAKE_CURRENT_LIST_FILE})
function(zel_embed_bytes input output)
    add_custom_command(
        OUTPUT ${output}
        COMMAND ${CMAKE_COMMAND} -DINPUT=${input} -DOUTPUT=${output} -P ${ZEL_EMBED_SCRIPT}
        DEPENDS ${input} ${ZEL_EMBED_SCRIPT}
        VERBATIM)
endfunction()
