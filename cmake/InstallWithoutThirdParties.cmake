# Run by `cmake --install` after the package: the libraries that a shared library of ours is linked with, and that
# nobody sees in its headers, are named in the package only as a hint for linkers. Who builds a sibling need not have
# them, so the hint goes.
cmake_policy(VERSION 3.25)
file(GLOB files $ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}/${ZP_PACKAGE_FOLDER}/ZPPipeManagerTargets-*.cmake)
foreach(file IN LISTS files)
  file(READ ${file} text)
  string(REGEX REPLACE "\n[^\n]*IMPORTED_LINK_DEPENDENT_LIBRARIES[^\n]*" "" text "${text}")
  file(WRITE ${file} "${text}")
endforeach()
