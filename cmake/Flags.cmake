# The one target that carries the compiler's flags; every room, program and test links it.
add_library(flags INTERFACE)
target_compile_features(flags INTERFACE cxx_std_20)
target_compile_options(flags INTERFACE -Wall -Wextra -Werror -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual)
target_compile_definitions(flags INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH
                                           QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(ATTENDANCE_SANITIZE)
  target_compile_options(flags INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined
                                         -fno-omit-frame-pointer)
  target_link_options(flags INTERFACE -fsanitize=address,undefined)
endif()
