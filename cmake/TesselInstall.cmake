# Where everything is installed. As a portable folder, all of it lies side by side; otherwise in the
# folders that systems have for each kind of file.
option(TESSEL_PORTABLE "Install the programs and what they need into one folder" OFF)

include(GNUInstallDirs)
if(TESSEL_PORTABLE)
  set(TESSEL_PROGRAM_DIR .)
  set(TESSEL_SOUND_DIR .)
else()
  set(TESSEL_PROGRAM_DIR ${CMAKE_INSTALL_BINDIR})
  # Found by the program as ../share/tessel-sudoku, wherever the whole tree is put.
  set(TESSEL_SOUND_DIR ${CMAKE_INSTALL_DATADIR}/tessel-sudoku)
endif()

# tessel_install_desktop_files(): menu entry, description and icons of the window.
function(tessel_install_desktop_files)
  if(TESSEL_PORTABLE)
    return()
  endif()
  set(source ${PROJECT_SOURCE_DIR}/packaging)
  set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
  install(FILES ${source}/tessel-sudoku.desktop
    DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES ${source}/io.github.tessel_sudoku.tessel_sudoku.metainfo.xml
    DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
  install(FILES ${source}/icons/tessel-sudoku.svg DESTINATION ${icons}/scalable/apps)
  install(FILES ${source}/icons/tessel-sudoku-symbolic.svg DESTINATION ${icons}/symbolic/apps)
  foreach(size 48 128)
    install(FILES ${source}/icons/${size}/tessel-sudoku.png
      DESTINATION ${icons}/${size}x${size}/apps)
  endforeach()
endfunction()

# tessel_install_pages(COMPONENT PAGE...): manual pages, by their files' paths.
function(tessel_install_pages component)
  if(NOT TESSEL_PORTABLE)
    install(FILES ${ARGN} DESTINATION ${CMAKE_INSTALL_MANDIR}/man6 COMPONENT ${component})
  endif()
endfunction()

# tessel_install_completion(FILE): what bash completes the command's arguments with.
function(tessel_install_completion file)
  if(NOT TESSEL_PORTABLE)
    install(FILES ${file} DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
      COMPONENT tools)
  endif()
endfunction()
