# Makes QvxDictionaryRows.inc from resources/dicom_dictionary.tsv, and gives it to the module that
# the including file is going to make.
set(dictionary_folder ${CMAKE_CURRENT_BINARY_DIR}/generated)
set(dictionary_file ${dictionary_folder}/QvxDictionaryRows.inc)
set(dictionary_table ${CMAKE_SOURCE_DIR}/resources/dicom_dictionary.tsv)
set(dictionary_maker ${CMAKE_SOURCE_DIR}/tools/make_dictionary.py)

file(MAKE_DIRECTORY ${dictionary_folder})
add_custom_command(
    OUTPUT ${dictionary_file}
    COMMAND Python3::Interpreter ${dictionary_maker} ${dictionary_table} ${dictionary_file}
    DEPENDS ${dictionary_table} ${dictionary_maker}
    COMMENT "Making the DICOM dictionary's tables"
    VERBATIM)

# At the folder's end, when the target is there. As a source it is made before anything compiles.
cmake_language(DEFER CALL target_sources zel_Qvx2Parser PRIVATE ${dictionary_file})
cmake_language(DEFER CALL target_include_directories zel_Qvx2Parser PRIVATE ${dictionary_folder})
