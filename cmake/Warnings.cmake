# Compiler settings that every target of this project shares.
add_library(kestra_options INTERFACE)
target_compile_options(kestra_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wold-style-cast -Wconversion -Wno-sign-conversion
  # GCC 12 sees overlapping copies in every "literal" + std::string (its bug 105651).
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
  $<$<BOOL:${KESTRA_WERROR}>:-Werror>)
if(KESTRA_SANITIZE)
  target_compile_options(kestra_options INTERFACE
    -fsanitize=${KESTRA_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(kestra_options INTERFACE -fsanitize=${KESTRA_SANITIZE})
endif()
if(KESTRA_TIDY)
  find_program(KESTRA_CLANG_TIDY clang-tidy REQUIRED)
  # It is handed the options above, of which it does not know all.
  set(CMAKE_CXX_CLANG_TIDY ${KESTRA_CLANG_TIDY} --quiet --warnings-as-errors=*
    --extra-arg=-Wno-unknown-warning-option)
endif()
