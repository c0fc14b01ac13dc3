# Writes exports.inc into the build tree: for every function that a public header declares, in the headers' order, one
# line VEMI_EXPORT(name, parameters). Written anew when a header changes. A declaration starts its line with VEMI_API.
file(GLOB public_headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/include/vemi/*.h)
set_property(DIRECTORY ${PROJECT_SOURCE_DIR} APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${public_headers})

set(export_lines "")
foreach(header IN LISTS public_headers)
  file(READ ${header} text)
  string(REGEX MATCHALL "\nVEMI_API [^;]*[)]" declarations "${text}")
  foreach(declaration IN LISTS declarations)
    if(NOT declaration MATCHES "(vemi[A-Za-z0-9_]+)[(](.*)[)]$")
      message(FATAL_ERROR "${header}: no function in '${declaration}'")
    endif()
    set(name ${CMAKE_MATCH_1})
    string(REGEX REPLACE "[ \n]+" " " parameters "${CMAKE_MATCH_2}")
    string(APPEND export_lines "VEMI_EXPORT(${name}, ${parameters})\n")
  endforeach()
endforeach()

set(VEMI_GENERATED_DIR ${PROJECT_BINARY_DIR}/generated)
file(CONFIGURE OUTPUT ${VEMI_GENERATED_DIR}/exports.inc CONTENT "${export_lines}" @ONLY)
