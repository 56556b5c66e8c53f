# zrk_add_qtest(NAME <name> SOURCES <files...> [LIBS <libs...>] [ENV <VAR=value...>] [XVFB] [WEBENGINE]
#               [ALSO_OFFSCREEN] [TOOL])
# One QtTest executable, registered with CTest. Widget tests run on the offscreen platform
# unless XVFB asks for a real X server. WEBENGINE: a test with a web view, under Xvfb; the
# sanitizers still check its memory accesses, but not leaks, since Chromium inside Qt WebEngine
# leaves blocks behind at exit, some from code already unloaded that no suppression can name.
# ALSO_OFFSCREEN: the same executable once more as <name>_offscreen, on the offscreen platform with
# no X display, where no OpenGL context can be made (a workstation without OpenGL).
# TOOL: the test runs the built zrk-tool (tests/common/tool_run.h).
# COMMA_LOCALE: the test runs a second time as <name>_ru, under ru_RU.UTF-8, whose decimal
# separator is a comma (scripts/install-deps.sh generates the locale).
function(zrk_add_qtest)
  cmake_parse_arguments(T "XVFB;WEBENGINE;ALSO_OFFSCREEN;TOOL;COMMA_LOCALE" "NAME" "SOURCES;LIBS;ENV" ${ARGN})
  if(T_WEBENGINE)
    set(T_XVFB TRUE)
  endif()
  add_executable(${T_NAME} ${T_SOURCES})
  if(T_TOOL)
    target_compile_definitions(${T_NAME} PRIVATE ZRK_TOOL_PATH="$<TARGET_FILE:zrk-tool>")
    add_dependencies(${T_NAME} zrk-tool)
  endif()
  target_link_libraries(${T_NAME} PRIVATE Qt5::Test ${T_LIBS})
  target_compile_definitions(${T_NAME} PRIVATE ZRK_SOURCE_DIR="${PROJECT_SOURCE_DIR}"
                                               ZRK_TEST_DATA_DIR="${CMAKE_CURRENT_SOURCE_DIR}/data")
  if(T_XVFB)
    add_test(NAME ${T_NAME} COMMAND xvfb-run -a $<TARGET_FILE:${T_NAME}>)
  else()
    add_test(NAME ${T_NAME} COMMAND ${T_NAME})
    list(APPEND T_ENV QT_QPA_PLATFORM=offscreen)
  endif()
  if(T_WEBENGINE)
    set(leaks 0)
  else()
    set(leaks 1)
  endif()
  list(APPEND T_ENV "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/lsan.supp"
                    "ASAN_OPTIONS=detect_leaks=${leaks}"
                    "UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1")
  set_tests_properties(${T_NAME} PROPERTIES ENVIRONMENT "${T_ENV};LC_ALL=C.UTF-8" TIMEOUT 300)
  if(T_ALSO_OFFSCREEN)
    add_test(NAME ${T_NAME}_offscreen COMMAND ${T_NAME})
    set_tests_properties(${T_NAME}_offscreen
                         PROPERTIES ENVIRONMENT "${T_ENV};LC_ALL=C.UTF-8;QT_QPA_PLATFORM=offscreen;DISPLAY=" TIMEOUT 300)
  endif()
  if(T_COMMA_LOCALE)
    if(T_XVFB)
      add_test(NAME ${T_NAME}_ru COMMAND xvfb-run -a $<TARGET_FILE:${T_NAME}>)
    else()
      add_test(NAME ${T_NAME}_ru COMMAND ${T_NAME})
    endif()
    set_tests_properties(${T_NAME}_ru PROPERTIES ENVIRONMENT "${T_ENV};LC_ALL=ru_RU.UTF-8;ZRK_COMMA_LOCALE=1"
                                                 TIMEOUT 300)
  endif()
endfunction()

# zrk_add_fuzzer(NAME <name> SOURCES <files...> [LIBS <libs...>])
# Seeds live in fuzz/corpus/<name>/; scripts/run-fuzz.sh starts each run from them.
function(zrk_add_fuzzer)
  cmake_parse_arguments(F "" "NAME" "SOURCES;LIBS" ${ARGN})
  add_executable(${F_NAME} ${F_SOURCES})
  target_link_libraries(${F_NAME} PRIVATE ${F_LIBS})
  target_link_options(${F_NAME} PRIVATE -fsanitize=fuzzer)
  set_property(GLOBAL APPEND PROPERTY ZRK_FUZZERS ${F_NAME})
endfunction()

# zrk_add_bench(NAME <name> SOURCES <files...> [LIBS <libs...>])
function(zrk_add_bench)
  cmake_parse_arguments(B "" "NAME" "SOURCES;LIBS" ${ARGN})
  add_executable(${B_NAME} ${B_SOURCES})
  target_link_libraries(${B_NAME} PRIVATE benchmark::benchmark ${B_LIBS})
  set_property(GLOBAL APPEND PROPERTY ZRK_BENCHES ${B_NAME})
endfunction()

# zrk_embed_catalogues(<out-var> NAME <resource name> PREFIX <resource prefix> TS <files...>)
# Compiles id-based catalogues with -idbased (qt5_create_translation would drop that option) and
# embeds the .qm files through a generated resource file <NAME>.qrc (Q_INIT_RESOURCE(<NAME>)).
# <out-var> receives the sources to add to the target that carries them.
function(zrk_embed_catalogues OUT)
  cmake_parse_arguments(C "" "NAME;PREFIX" "TS" ${ARGN})
  set_source_files_properties(${C_TS} PROPERTIES OUTPUT_LOCATION ${CMAKE_CURRENT_BINARY_DIR})
  qt5_add_translation(qm_files ${C_TS} OPTIONS -idbased)
  set(qrc ${CMAKE_CURRENT_BINARY_DIR}/${C_NAME}.qrc)
  file(WRITE ${qrc}.in "<RCC><qresource prefix=\"${C_PREFIX}\">\n")
  foreach(qm ${qm_files})
    get_filename_component(qm_name ${qm} NAME)
    file(APPEND ${qrc}.in "<file>${qm_name}</file>\n")
  endforeach()
  file(APPEND ${qrc}.in "</qresource></RCC>\n")
  configure_file(${qrc}.in ${qrc} COPYONLY)
  qt5_add_resources(qrc_sources ${qrc})
  set(${OUT} ${qrc_sources} ${qm_files} PARENT_SCOPE)
endfunction()
