# Headers that nearly every file includes are compiled once per build. A target reuses the set that fits; the sets
# differ in content and in compiler options (libraries are position-independent, programs are not), as a set can be
# used only with the options that it was compiled with.

set(vantrell_precompiled_std
    <algorithm> <array> <atomic> <chrono> <condition_variable> <cstdint> <deque> <functional> <memory> <mutex>
    <optional> <set> <span> <string> <thread> <unordered_map> <unordered_set> <utility> <variant> <vector>)
set(vantrell_precompiled_core
    ${vantrell_precompiled_std}
    <QByteArray> <QCoreApplication> <QDateTime> <QDir> <QFile> <QFileInfo> <QHash> <QObject> <QSet> <QString>
    <QStringList> <QUrl>)
set(vantrell_precompiled_window
    ${vantrell_precompiled_core}
    <QAbstractItemView> <QAction> <QApplication> <QBoxLayout> <QComboBox> <QDialog> <QDialogButtonBox> <QFileDialog>
    <QHeaderView> <QIcon> <QKeyEvent> <QLabel> <QLineEdit> <QLocale> <QMainWindow> <QMenu> <QMessageBox> <QPainter>
    <QPointer> <QPushButton> <QTableView> <QTimer> <QWidget>)

# vantrell_precompile(<set> LIBRARIES <library...> HEADERS <header...>) makes the set.
function(vantrell_precompile set)
    cmake_parse_arguments(ARG "" "" "LIBRARIES;HEADERS" ${ARGN})
    add_library(vantrell_precompiled_${set} OBJECT "${PROJECT_SOURCE_DIR}/cmake/precompiled.cpp")
    target_link_libraries(vantrell_precompiled_${set} PRIVATE vantrell_common ${ARG_LIBRARIES})
    target_precompile_headers(vantrell_precompiled_${set} PRIVATE ${ARG_HEADERS})
endfunction()

vantrell_precompile(core LIBRARIES Qt6::Core HEADERS ${vantrell_precompiled_core})
vantrell_precompile(json LIBRARIES Qt6::Core nlohmann_json::nlohmann_json
    HEADERS ${vantrell_precompiled_core} <nlohmann/json.hpp>)
target_compile_options(vantrell_precompiled_json PRIVATE ${VANTRELL_JSON_OPTIMISATION})
if(VANTRELL_WINDOW)
    vantrell_precompile(window LIBRARIES Qt6::Widgets HEADERS ${vantrell_precompiled_window})
    target_compile_options(vantrell_precompiled_window PRIVATE ${VANTRELL_WINDOW_OPTIMISATION})
endif()
# Qt Test's header depends on the Qt modules of a program, so all tests use the same ones.
if(BUILD_TESTING)
    set(vantrell_precompiled_testing
        <QBuffer> <QElapsedTimer> <QJsonArray> <QJsonObject> <QProcess> <QRandomGenerator> <QRegularExpression>
        <QSignalSpy> <QTemporaryDir> <QTest>)
    vantrell_precompile(test LIBRARIES Qt6::Test Qt6::Network
        HEADERS ${vantrell_precompiled_core} ${vantrell_precompiled_testing})
    set(test_sets test)
    if(VANTRELL_WINDOW)
        vantrell_precompile(window_test LIBRARIES Qt6::Widgets Qt6::Test Qt6::Network
            HEADERS ${vantrell_precompiled_window} ${vantrell_precompiled_testing} <QCheckBox> <QListWidget> <QMenuBar>)
        list(APPEND test_sets window_test)
    endif()
    foreach(set ${test_sets})
        set_target_properties(vantrell_precompiled_${set} PROPERTIES POSITION_INDEPENDENT_CODE OFF)
        target_compile_options(vantrell_precompiled_${set} PRIVATE
            ${CMAKE_CXX_COMPILE_OPTIONS_PIE} ${VANTRELL_TEST_OPTIMISATION})
    endforeach()
endif()
