# Language level, warnings and sanitizers, carried by one target that every other target links.
add_library(seamwise_options INTERFACE)
target_compile_features(seamwise_options INTERFACE cxx_std_20)
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
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)

# The many small test programs link in a third of the time.
find_program(LLD ld.lld)
if(LLD)
  target_link_options(seamwise_options INTERFACE -fuse-ld=lld)
endif()
