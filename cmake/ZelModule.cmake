# zel_add_module(NAME folder SOURCES … [PUBLIC …] [PRIVATE …] [QT …] [LIBS …] [TESTS …])
# zel_add_program(NAME folder OUTPUT name SOURCES … [PRIVATE …] [QT …])
# zel_add_codec(NAME name SOURCES … LIBS …)
#
# A codec is a module of its own, lib/zelora/codec-NAME.so, opened when the first frame needs it: for
# libraries that take long to load. Its sources stand in src/QvxToolkit/modules; they link nothing of
# ours and see the toolkit's headers only. Whoever links QvxToolkit has it built.
#
# One target for one folder under src/. PUBLIC and PRIVATE name other folders; LIBS names outside
# libraries, QT the components of Qt 6. A dependency that does not stand on a lower floor of
# cmake/floors.txt, or does not exist, stops the configuration. Qt's include path goes to nobody
# who does not name it. TESTS are files of tests/<folder>, without ".cpp"; they make one program,
# whose cases carry the label "core/<folder>", or "gui/<folder>" when there are widgets in it.

file(STRINGS ${CMAKE_CURRENT_LIST_DIR}/floors.txt ZEL_FLOOR_LINES REGEX "^[0-9]")
foreach(line IN LISTS ZEL_FLOOR_LINES)
    string(REGEX MATCH "^([0-9]+) +([^ ]+)" _ "${line}")
    set(ZEL_FLOOR_${CMAKE_MATCH_2} ${CMAKE_MATCH_1})
endforeach()

function(zel_target_of folder out)
    string(REPLACE "/" "_" name "${folder}")
    set(${out} "zel_${name}" PARENT_SCOPE)
endfunction()

function(zel_link_folders target folder visibility)
    if(NOT DEFINED ZEL_FLOOR_${folder})
        message(FATAL_ERROR "${folder} has no floor in cmake/floors.txt")
    endif()
    foreach(used IN LISTS ARGN)
        zel_target_of(${used} used_target)
        if(NOT TARGET ${used_target})
            message(FATAL_ERROR "${folder} uses ${used}, which is not a module (or comes later)")
        endif()
        if(NOT ZEL_FLOOR_${used} LESS ZEL_FLOOR_${folder})
            message(FATAL_ERROR "${folder} (floor ${ZEL_FLOOR_${folder}}) may not use ${used} "
                                "(floor ${ZEL_FLOOR_${used}})")
        endif()
        target_link_libraries(${target} ${visibility} ${used_target})
    endforeach()
endfunction()

# Qt serves the target itself; whoever links the target gets the library, not the headers.
function(zel_link_qt target)
    foreach(component IN LISTS ARGN)
        target_link_libraries(${target} PRIVATE Qt6::${component})
    endforeach()
endfunction()

function(zel_add_module)
    cmake_parse_arguments(M "" "NAME" "SOURCES;PUBLIC;PRIVATE;QT;LIBS;TESTS" ${ARGN})
    zel_target_of(${M_NAME} target)
    list(TRANSFORM M_SOURCES PREPEND ${CMAKE_SOURCE_DIR}/src/${M_NAME}/)
    add_library(${target} STATIC ${M_SOURCES})
    target_include_directories(${target} PUBLIC ${CMAKE_SOURCE_DIR}/src)
    target_link_libraries(${target} PUBLIC zel_options PRIVATE ${M_LIBS})
    zel_link_folders(${target} ${M_NAME} PUBLIC ${M_PUBLIC})
    zel_link_folders(${target} ${M_NAME} PRIVATE ${M_PRIVATE})
    zel_link_qt(${target} ${M_QT})
    if("Widgets" IN_LIST M_QT)
        set_target_properties(${target} PROPERTIES AUTOMOC ON)
    endif()
    if(M_TESTS AND ZEL_BUILD_TESTS)
        zel_add_tests(${M_NAME} ${target} "${M_QT}" ${M_TESTS})
    endif()
endfunction()

function(zel_add_tests folder target qt)
    set(program ${target}_test)
    list(TRANSFORM ARGN PREPEND ${CMAKE_SOURCE_DIR}/tests/${folder}/)
    list(TRANSFORM ARGN APPEND .cpp)
    set(main GTest::gtest_main)
    if("Widgets" IN_LIST qt)
        set(main GTest::gtest)
        list(APPEND ARGN ${CMAKE_SOURCE_DIR}/tests/fixtures/WidgetTestMain.cpp)
    elseif("Gui" IN_LIST qt)
        set(main GTest::gtest)
        list(APPEND ARGN ${CMAKE_SOURCE_DIR}/tests/fixtures/GuiTestMain.cpp)
    endif()
    add_executable(${program} EXCLUDE_FROM_ALL ${ARGN})
    target_include_directories(${program} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
    target_link_libraries(${program} PRIVATE ${target} zel_test_fixtures ${main})
    zel_link_qt(${program} ${qt})
    if("Widgets" IN_LIST qt)
        zel_link_qt(${program} Test)
    endif()
    set(label "gui/${folder}")
    if(NOT "Widgets" IN_LIST qt)
        set(label "core/${folder}")
        add_dependencies(core_tests ${program})
    endif()
    add_dependencies(all_tests ${program})
    gtest_discover_tests(${program} TEST_PREFIX "${folder}:" DISCOVERY_TIMEOUT 60
        PROPERTIES LABELS "${label}" TIMEOUT 300
                   ENVIRONMENT "QT_QPA_PLATFORM=offscreen"
                   # A second value of ENVIRONMENT would be lost on the way through the discovery.
                   ENVIRONMENT_MODIFICATION "ZELORA_SNAPSHOTS=set:${CMAKE_BINARY_DIR}/snapshots")
endfunction()

function(zel_add_program)
    cmake_parse_arguments(M "" "NAME;OUTPUT" "SOURCES;PRIVATE;QT;LIBS" ${ARGN})
    zel_target_of(${M_NAME} target)
    list(TRANSFORM M_SOURCES PREPEND ${CMAKE_SOURCE_DIR}/src/${M_NAME}/)
    add_executable(${target} ${M_SOURCES})
    set_target_properties(${target} PROPERTIES OUTPUT_NAME ${M_OUTPUT})
    target_link_libraries(${target} PRIVATE zel_options ${M_LIBS})
    zel_link_folders(${target} ${M_NAME} PRIVATE ${M_PRIVATE})
    zel_link_qt(${target} ${M_QT})
endfunction()

function(zel_add_codec)
    cmake_parse_arguments(M "" "NAME" "SOURCES;LIBS" ${ARGN})
    set(target zel_codec_${M_NAME})
    list(TRANSFORM M_SOURCES PREPEND ${CMAKE_SOURCE_DIR}/src/QvxToolkit/modules/)
    add_library(${target} MODULE ${M_SOURCES})
    set_target_properties(${target} PROPERTIES
        PREFIX "" OUTPUT_NAME codec-${M_NAME} CXX_VISIBILITY_PRESET hidden
        LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib/zelora)
    target_include_directories(${target} PRIVATE ${CMAKE_SOURCE_DIR}/src)
    target_link_libraries(${target} PRIVATE zel_options ${M_LIBS})
    add_dependencies(zel_QvxToolkit ${target})
endfunction()
