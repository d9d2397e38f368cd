# The catalogue of records, and lines both ways: the lower floor of this folder.
kestra_module(records FOLDER control
  SOURCES catalogue.cpp record_reader.cpp record_table.cpp record_writer.cpp
    spillway_record_table.cpp
  HEADERS catalogue.h layout_table.h line_cutter.h record_reader.h record_table.h record_writer.h
  USES base)
