# Writes a C++ source that holds the given files' bytes, so that a program can
# hand out the files it is delivered with wherever it runs.
#   embed_files(OUTPUT <cpp> FILES <path>...)
function(embed_files)
  cmake_parse_arguments(EMBED "" "OUTPUT" "FILES" ${ARGN})
  set(entries "")
  foreach(path IN LISTS EMBED_FILES)
    get_filename_component(name "${path}" NAME)
    file(READ "${path}" hex HEX)
    string(REGEX REPLACE "([0-9a-f][0-9a-f])" "\\\\x\\1" escaped "${hex}")
    file(SIZE "${path}" size)
    string(APPEND entries "    {\"${name}\", std::string(\"${escaped}\", ${size})},\n")
  endforeach()
  file(CONFIGURE OUTPUT "${EMBED_OUTPUT}" CONTENT
"// Generated from the delivered data files; do not edit.
#include \"runner/delivered_files.h\"

namespace veridraw {

const std::vector<DeliveredFile>& deliveredFiles() {
  static const std::vector<DeliveredFile> files = {
@entries@  };
  return files;
}

}  // namespace veridraw
" @ONLY)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${EMBED_FILES})
endfunction()
