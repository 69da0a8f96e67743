# The tables of base/letters.h, made from the character database of the distribution's Python.
set(VARNEL_LETTERS ${CMAKE_BINARY_DIR}/letter_tables.cpp)
add_custom_command(
  OUTPUT ${VARNEL_LETTERS}
  COMMAND /usr/bin/python3 ${PROJECT_SOURCE_DIR}/tools/assets/build_letters.py ${VARNEL_LETTERS}
  DEPENDS ${PROJECT_SOURCE_DIR}/tools/assets/build_letters.py
  COMMENT "Making the tables of letters"
  VERBATIM)
