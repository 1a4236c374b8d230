# tessarine_add_test(NAME SOURCES... LIBS...)
# One Qt Test executable registered with CTest. Every test runs headless and with its
# own XDG data directory, so no test can read or write a real scan history. None reaches the
# desktop's session bus either: its settings portal would turn the colours dark under a test.
function(tessarine_add_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE Qt6::Test ${ARG_LIBS})
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_QUICK_BACKEND=software;XDG_DATA_HOME=${CMAKE_BINARY_DIR}/test-data/${name};LC_ALL=C.UTF-8;DBUS_SESSION_BUS_ADDRESS=disabled:"
        TIMEOUT 300)
endfunction()
