# The program in README.md is examples/quickstart.c, word for word.
get_filename_component(root ${CMAKE_CURRENT_LIST_DIR}/../.. ABSOLUTE)
file(READ ${root}/examples/quickstart.c program)
file(READ ${root}/README.md readme)
string(FIND "${readme}" "```c\n${program}```" place)
if(place EQUAL -1)
  message(FATAL_ERROR "README.md does not quote examples/quickstart.c as it is")
endif()
