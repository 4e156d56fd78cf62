# Warnings are errors everywhere; the sanitizer build adds address and undefined.
add_compile_options(-Wall -Wextra -Werror)
if(HUNT_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
  add_link_options(-fsanitize=address,undefined)
endif()
