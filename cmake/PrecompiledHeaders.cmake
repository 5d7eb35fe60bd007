# gradix_precompile(KIND target...) with GRADIX_PCH: the targets read the headers of their kind precompiled.
#
#   library       the standard library, for code that goes into libraries and the module
#   program       the same for programs
#   qt            the same and Qt, for both
#   tests         the standard library and GoogleTest
#   qt-tests      all of these
#   command-line  the standard library and the parser of arguments
#
# Targets of one kind share what was compiled once, so they have to agree in everything that the compiler takes for a
# part of the language: position independence, optimisation, sanitizers, macros that these headers look at.
# A source still includes whatever it needs: the build without GRADIX_PCH shows what is missing.
set(standard_headers
  <algorithm> <array> <cerrno> <charconv> <cmath> <cstddef> <cstdint> <cstdio> <cstdlib> <cstring> <exception>
  <filesystem> <functional> <iterator> <limits> <map> <memory> <new> <numeric> <optional> <set> <span> <sstream>
  <string> <string_view> <system_error> <unordered_map> <utility> <variant> <vector>)
set(qt_headers
  <QAbstractItemModel> <QAction> <QApplication> <QBoxLayout> <QByteArray> <QCheckBox> <QComboBox> <QDir> <QEvent> <QFile>
  <QFileInfo> <QFontMetrics> <QFormLayout> <QHeaderView> <QKeyEvent> <QLabel> <QLineEdit> <QList> <QLocale> <QMenu>
  <QMessageBox> <QMimeData> <QMouseEvent> <QPainter> <QPointer> <QPushButton> <QScreen> <QScrollArea> <QScrollBar>
  <QSettings> <QShortcut> <QSplitter> <QStackedWidget> <QString> <QStringList> <QStyle> <QTabWidget> <QTableView>
  <QTimer> <QToolButton> <QTreeView> <QUrl> <QWidget>)
set(test_headers <gtest/gtest.h> <random> <fstream>)

if(GRADIX_PCH)
  if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-fpch-preprocess>) # ccache asks for it
  else()
    add_compile_options("$<$<COMPILE_LANGUAGE:CXX>:SHELL:-Xclang -fno-pch-timestamp>")
  endif()
  file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/precompiled.cpp CONTENT "int main() {}\n")
endif()

function(_gradix_headers_of kind)
  set(headers ${standard_headers})
  if(kind MATCHES qt)
    list(APPEND headers ${qt_headers})
  endif()
  if(kind MATCHES tests)
    list(APPEND headers ${test_headers})
  endif()
  if(kind STREQUAL command-line)
    list(APPEND headers <CLI/CLI.hpp>)
  endif()
  set(headers ${headers} PARENT_SCOPE)
endfunction()

# The target that compiles the headers of a kind, made at its first use: a program where they are for programs, so that
# it is compiled as those are, whatever the libraries ask for.
function(_gradix_add_precompiler kind)
  if(kind MATCHES "program|tests")
    add_executable(precompiled-${kind} ${PROJECT_BINARY_DIR}/precompiled.cpp)
    set_target_properties(precompiled-${kind} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/precompiled)
  else()
    add_library(precompiled-${kind} OBJECT ${PROJECT_BINARY_DIR}/precompiled.cpp)
  endif()
  _gradix_headers_of(${kind})
  target_precompile_headers(precompiled-${kind} PRIVATE ${headers})
  target_link_libraries(precompiled-${kind} PRIVATE gradix::options)
  if(kind MATCHES qt)
    find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets)
    target_link_libraries(precompiled-${kind} PRIVATE Qt6::Widgets)
  endif()
  if(kind MATCHES tests)
    find_package(GTest REQUIRED)
    target_link_libraries(precompiled-${kind} PRIVATE GTest::gtest)
  endif()
endfunction()

function(gradix_precompile kind)
  if(NOT GRADIX_PCH)
    return()
  endif()
  if(NOT TARGET precompiled-${kind})
    _gradix_add_precompiler(${kind})
  endif()
  foreach(target IN LISTS ARGN)
    target_precompile_headers(${target} REUSE_FROM precompiled-${kind})
  endforeach()
endfunction()

# The same for a target that shares with none, because it is compiled in its own way or alone reads these headers.
function(gradix_precompile_alone kind target)
  if(GRADIX_PCH)
    _gradix_headers_of(${kind})
    target_precompile_headers(${target} PRIVATE ${headers})
  endif()
endfunction()
