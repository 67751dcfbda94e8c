# Writes a C++ source that holds files as texts.
#
#   cmake -D OUTPUT=FILE.cpp -D HEADER=HEADER -D NAMESPACE=NAMESPACE -P embed.cmake -- NAME=FILE…
#
# A file stands in a raw string, whose delimiter must not appear in it.

set(source "#include \"${HEADER}\"\n\nnamespace ${NAMESPACE} {\n\n")
math(EXPR last "${CMAKE_ARGC} - 1")
set(is_file FALSE)
foreach(i RANGE ${last})
    set(argument "${CMAKE_ARGV${i}}")
    if(argument STREQUAL "--")
        set(is_file TRUE)
    elseif(is_file)
        string(REGEX MATCH "^([^=]+)=(.*)$" matched "${argument}")
        set(name "${CMAKE_MATCH_1}")
        file(READ "${CMAKE_MATCH_2}" content)
        string(FIND "${content}" ")embedded\"" found)
        if(NOT found EQUAL -1)
            message(FATAL_ERROR "${CMAKE_MATCH_2} holds the delimiter of embedded texts")
        endif()
        string(APPEND source "const std::string_view ${name} = R\"embedded(${content})embedded\";\n\n")
    endif()
endforeach()
string(APPEND source "}  // namespace ${NAMESPACE}\n")
file(WRITE "${OUTPUT}" "${source}")
