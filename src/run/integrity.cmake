# The checkers of a control file and what they found; the input window and the command line start them.
kestra_module(integrity FOLDER run
  SOURCES error_rows.cpp finding_messages.cpp integrity_check.cpp
  HEADERS error_rows.h finding_messages.h integrity_check.h
  USES base platform)
