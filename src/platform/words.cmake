# Compiles every translation of resources/translations and builds it into the module.
include(${CMAKE_CURRENT_LIST_DIR}/embed_bytes.cmake)
set(words_folder ${CMAKE_CURRENT_BINARY_DIR}/words)
file(MAKE_DIRECTORY ${words_folder})
file(GLOB words_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/resources/translations/zelora_*.ts)
set(words_made "")
set(words_arrays "")
set(words_rows "")
foreach(source IN LISTS words_sources)
    string(REGEX REPLACE ".*/zelora_(.*)\\.ts$" "\\1" language ${source})
    set(compiled ${words_folder}/${language}.qm)
    add_custom_command(
        OUTPUT ${compiled}
        COMMAND Qt6::lrelease -silent ${source} -qm ${compiled}
        DEPENDS ${source}
        VERBATIM)
    zel_embed_bytes(${compiled} ${words_folder}/${language}.inc)
    list(APPEND words_made ${words_folder}/${language}.inc)
    string(MAKE_C_IDENTIFIER ${language} name)
    string(APPEND words_arrays "constexpr unsigned char k_${name}[] = {\n"
                               "#include \"${language}.inc\"\n};\n")
    string(APPEND words_rows "    {\"${language}\", k_${name}},\n")
endforeach()
file(CONFIGURE OUTPUT ${words_folder}/WordFiles.cpp CONTENT
"#include \"platform/WordFiles.h\"
namespace {
@words_arrays@
constexpr WordFile kFiles[] = {
@words_rows@};
}  // namespace
std::span<const WordFile> WordFiles() { return kFiles; }
" @ONLY)
target_sources(zel_platform PRIVATE ${words_folder}/WordFiles.cpp ${words_made})
