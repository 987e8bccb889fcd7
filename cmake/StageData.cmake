# Copies the data files kept in the source tree (help pages) beside the programs in the build
# tree, where the program finds them as it does in share/tonvane/ once installed.
#   cmake -DSOURCE_DIR=<source> -DBINARY_DIR=<build> -P StageData.cmake
foreach(dir help)
  if(EXISTS "${SOURCE_DIR}/res/${dir}")
    file(COPY "${SOURCE_DIR}/res/${dir}" DESTINATION "${BINARY_DIR}")
  endif()
endforeach()
