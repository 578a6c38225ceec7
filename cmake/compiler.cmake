# Every compiler-specific flag of the project, in one place.
# Program strings are bytes of the ANSI code page 1252; sources are UTF-8.

# One C runtime for every target, linked in, so the program needs no DLL beside it.
if(MSVC)
  set(CMAKE_MSVC_RUNTIME_LIBRARY "MultiThreaded$<$<CONFIG:Debug>:Debug>")
endif()

function(kes_flags target)
  target_compile_features(${target} PUBLIC cxx_std_20)
  if(MSVC)
    target_compile_options(${target} PRIVATE /source-charset:utf-8 /execution-charset:windows-1252 /W4 /permissive-
                                             /wd4100 /wd4458)
    target_compile_definitions(${target} PRIVATE _CRT_SECURE_NO_WARNINGS NOMINMAX)
  else()
    target_compile_options(${target} PRIVATE -finput-charset=UTF-8 -fexec-charset=CP1252
                                             -Wall -Wextra -Wno-unused-parameter)
    if(WIN32)
      target_compile_definitions(${target} PRIVATE NOMINMAX)
    endif()
  endif()
endfunction()

# A Windows program that runs on a bare machine: no runtime DLLs beside it.
function(kes_static_runtime target)
  if(MINGW)
    target_link_options(${target} PRIVATE -static -static-libgcc -static-libstdc++)
    # Sections on page boundaries in the file: Wine then maps the image from the file and
    # keeps only the pages in use, where it reads an image with 512-byte alignment whole
    # into private memory (1.6 MB of the program's working set). The debugging sections
    # that the static C++ runtime brings would be read with it: a release build drops them.
    target_link_options(${target} PRIVATE -Wl,--file-alignment=0x1000 $<$<CONFIG:Release>:-s>)
  endif()
endfunction()

# The program brings its own manifest in its resources; the linker must not add another.
function(kes_own_manifest target)
  if(MSVC)
    target_link_options(${target} PRIVATE /MANIFEST:NO)
  endif()
endfunction()

# The sanitizer run of the native suites (its own build tree): memory errors and undefined
# behaviour stop the test that causes them. GCC, as for the plain native build: it takes
# -fexec-charset=CP1252 together with the sanitizers, so the sources compile as they are,
# where clang (the fuzz targets') knows no code page for literals and needs converted copies.
option(KES_SANITIZE "Build with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)
if(KES_SANITIZE AND NOT MSVC AND NOT WIN32)
  # -O1 -g1: a third of the run time of -O0, line numbers in the reports, a lighter build.
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer -O1 -g1)
  # The spare capacity of every std::vector poisoned: a row read after the list was cleared
  # or shrunk (its memory kept for reuse) is reported, not only one read after a regrowth.
  # The panel's lists are vectors, and a pumped click may clear one under a loop.
  add_compile_definitions(_GLIBCXX_SANITIZE_VECTOR=1)
  add_link_options(-fsanitize=address,undefined)
endif()
