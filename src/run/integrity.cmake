# The checkers of a control file and what they found; the input window and the command line start them.
kestra_module(integrity FOLDER run
  SOURCES integrity_check.cpp
  HEADERS integrity_check.h
  USES base platform)
