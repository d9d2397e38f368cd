# The catalogue of records, and lines both ways: the lower floor of this folder.
kestra_module(records FOLDER control
  SOURCES catalogue.cpp record_reader.cpp record_table.cpp record_writer.cpp
  HEADERS catalogue.h line_cutter.h record_reader.h record_table.h record_writer.h
  USES base)
