# Fails the build when a file of the Win32 layers creates a GDI or USER object (icon,
# bitmap, font, brush, menu, image list) by itself instead of through the owning functions of
# src/platform/win32/unique_handle.h. A view that loses one object per warning grows for
# as long as the tray program runs, and under Wine no object count can be read to see it.
#
# Allowed outside that file: LoadImageA with LR_SHARED in the same statement (the system
# owns the image), a call whose object goes straight into an owner declared on the same
# line ("UniqueGdi pinsel(::CreateSolidBrush(...))"), and a line that says
# "gdi-check: owned" because the call on it hands its object to an owner otherwise.
#
# Included from CMakeLists.txt it adds the target kes_gdi_check, which runs at every build
# in which a source changed; run as a script (-DKES_SOURCE_DIR=... -P) it does the check.

if(NOT CMAKE_SCRIPT_MODE_FILE)
  file(GLOB_RECURSE kes_gdi_sources CONFIGURE_DEPENDS
    ${CMAKE_SOURCE_DIR}/src/ui/win32/*.h ${CMAKE_SOURCE_DIR}/src/ui/win32/*.cpp
    ${CMAKE_SOURCE_DIR}/src/platform/win32/*.h ${CMAKE_SOURCE_DIR}/src/platform/win32/*.cpp)
  add_custom_command(OUTPUT ${CMAKE_BINARY_DIR}/gdi_check.stamp
    COMMAND ${CMAKE_COMMAND} -DKES_SOURCE_DIR=${CMAKE_SOURCE_DIR} -P ${CMAKE_CURRENT_LIST_FILE}
    COMMAND ${CMAKE_COMMAND} -E touch ${CMAKE_BINARY_DIR}/gdi_check.stamp
    DEPENDS ${kes_gdi_sources} ${CMAKE_CURRENT_LIST_FILE}
    COMMENT "Checking that the Win32 layers own every GDI and USER object they create")
  add_custom_target(kes_gdi_check ALL DEPENDS ${CMAKE_BINARY_DIR}/gdi_check.stamp)
  return()
endif()

cmake_policy(SET CMP0007 NEW)  # empty lines stay list entries, so line numbers hold

set(creating "LoadIconA|LoadIconW|LoadImageA|LoadImageW|CreateFontA|CreateFontW|CreateFontIndirectA|CreateFontIndirectW|CreateFontIndirectExA|CreateSolidBrush|CreateBrushIndirect|CreateHatchBrush|CreatePatternBrush|CreatePen|CreateBitmap|CreateBitmapIndirect|CreateCompatibleBitmap|CreateDIBitmap|CreateDIBSection|CreatePopupMenu|CreateMenu|CopyIcon|CopyImage|ExtractIconA|ExtractIconW|ExtractIconExA|ExtractIconExW|ExtractAssociatedIconA|CreateIcon|CreateIconIndirect|CreateIconFromResource|CreateIconFromResourceEx|ImageList_GetIcon|ImageList_ExtractIcon|ImageList_Create|ImageList_Duplicate|ImageList_LoadImageA|ImageList_LoadImageW")
set(call_regex "(^|[^A-Za-z0-9_])(${creating})[ \t]*\\(")

file(GLOB_RECURSE files
  ${KES_SOURCE_DIR}/src/ui/win32/*.h ${KES_SOURCE_DIR}/src/ui/win32/*.cpp
  ${KES_SOURCE_DIR}/src/platform/win32/*.h ${KES_SOURCE_DIR}/src/platform/win32/*.cpp)
set(found "")
foreach(f IN LISTS files)
  if(f MATCHES "/unique_handle\\.h$")
    continue()
  endif()
  file(READ "${f}" text)
  # One list entry a line: the characters that CMake's lists give a meaning are put aside.
  string(REPLACE ";" "<semicolon>" text "${text}")
  string(REPLACE "[" "<open>" text "${text}")
  string(REPLACE "]" "<close>" text "${text}")
  string(REPLACE "\\" "<backslash>" text "${text}")
  string(REPLACE "\n" ";" lines "${text}")
  list(LENGTH lines count)
  set(number 0)
  while(number LESS count)
    list(GET lines ${number} line)
    math(EXPR number "${number} + 1")
    if(NOT line MATCHES "${call_regex}")
      continue()
    endif()
    set(call "${CMAKE_MATCH_2}")
    if(line MATCHES "gdi-check: owned")
      continue()
    endif()
    if(line MATCHES "Unique[A-Za-z]+(<[^>]*>)?[ \t]+[^ \t(){}]+[ \t]*[({][ \t]*(::)?(${creating})[ \t]*\\(")
      continue()
    endif()
    if(call MATCHES "^LoadImage")
      # The statement runs on to the line that ends it.
      set(statement "${line}")
      set(next ${number})
      while(NOT statement MATCHES "<semicolon>" AND next LESS count)
        list(GET lines ${next} more)
        string(APPEND statement " ${more}")
        math(EXPR next "${next} + 1")
      endwhile()
      if(statement MATCHES "LR_SHARED")
        continue()
      endif()
    endif()
    file(RELATIVE_PATH shown "${KES_SOURCE_DIR}" "${f}")
    string(APPEND found "  ${shown}:${number}: ${call}\n")
  endwhile()
endforeach()

if(found)
  message(FATAL_ERROR "GDI or USER objects created outside src/platform/win32/unique_handle.h; "
    "create them there with an owner, load them with LR_SHARED, or mark a line that hands "
    "the object straight to an owner with \"gdi-check: owned\":\n${found}")
endif()
