# Warnings, hardening and sanitizers, carried by one target that every other target links.
add_library(seamwise_options INTERFACE)
target_compile_options(
  seamwise_options
  INTERFACE -Wall -Wextra -Wconversion -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual)
target_compile_definitions(
  seamwise_options
  INTERFACE QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII QT_USE_QSTRINGBUILDER QT_NO_FOREACH QT_MESSAGELOGCONTEXT
            QT_DISABLE_DEPRECATED_BEFORE=0x060400)
target_include_directories(seamwise_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
if(SEAMWISE_SANITIZE)
  target_compile_options(
    seamwise_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined
                               -fno-omit-frame-pointer)
  target_link_options(seamwise_options INTERFACE -fsanitize=address,undefined)
endif()
# The language of every target.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)

# The program's table of addresses is filled before it starts and can't be written to from then on.
if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
  target_link_options(seamwise_options INTERFACE $<$<CONFIG:Release>:LINKER:-z,relro,-z,now>)
endif()

# Compiled objects are kept for the next build where ccache is installed.
find_program(CCACHE ccache)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

# The fonts and the Hindi texts are made, and some tests run, by any Python that has fontTools.
function(has_font_tools answer python)
  execute_process(COMMAND ${python} -c "import fontTools" RESULT_VARIABLE failed OUTPUT_QUIET ERROR_QUIET)
  if(failed)
    set(${answer} FALSE PARENT_SCOPE)
  endif()
endfunction()
find_program(Python3_EXECUTABLE NAMES python3 python VALIDATOR has_font_tools REQUIRED)
find_package(Python3 REQUIRED COMPONENTS Interpreter)

# The many small test programs link in a third of the time.
find_program(LLD ld.lld)
if(LLD)
  target_link_options(seamwise_options INTERFACE -fuse-ld=lld)
endif()
