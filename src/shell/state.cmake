# The values that everybody reads: the lower floor of this folder.
kestra_module(state FOLDER shell
  SOURCES application_state.cpp
  HEADERS application_state.h
  USES base platform)
