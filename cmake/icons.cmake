# Icons are drawings, rendered at each size, so that none is scaled on the screen. Where the tools
# for that are missing, as usual on Windows, the renderings that scripts/keep-icons has stored
# beside the drawings are used.
find_program(TALLYREX_RSVG_CONVERT rsvg-convert)
find_program(TALLYREX_ICOTOOL icotool)

# tallyrex_render_icon(DRAWING.svg SIZES 16 32 ... [SMALL DRAWING-FOR-LESS-THAN-32.svg])
# renders DRAWING.svg into ${CMAKE_BINARY_DIR}/icons/DRAWING.ico. If there is a DRAWING-SIZE.svg, it is
# used for that size.
function(tallyrex_render_icon drawing)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "SMALL" "SIZES")
  get_filename_component(drawing ${drawing} ABSOLUTE)
  if(arg_SMALL)
    get_filename_component(arg_SMALL ${arg_SMALL} ABSOLUTE)
  endif()
  get_filename_component(name ${drawing} NAME_WE)
  set(folder ${CMAKE_BINARY_DIR}/icons)
  file(MAKE_DIRECTORY ${folder})
  if(NOT TALLYREX_RSVG_CONVERT OR NOT TALLYREX_ICOTOOL)
    get_filename_component(kept ${drawing} DIRECTORY)
    configure_file(${kept}/kept/${name}.ico ${folder}/${name}.ico COPYONLY)
    return()
  endif()

  set(renderings)
  set(pictures)
  set(sources)
  foreach(size ${arg_SIZES})
    set(source ${drawing})
    if(arg_SMALL AND size LESS 32)
      set(source ${arg_SMALL})
    endif()
    string(REPLACE .svg -${size}.svg own ${drawing})
    if(EXISTS ${own})
      set(source ${own})
    endif()
    list(APPEND sources ${source})
    set(picture ${folder}/${name}-${size}.png)
    list(APPEND renderings COMMAND ${TALLYREX_RSVG_CONVERT} --width ${size} --height ${size}
                                   --output ${picture} ${source})
    # Large images stay compressed: as bitmaps they would be larger than the program.
    if(size LESS 32)
      list(APPEND pictures ${picture})
    else()
      list(APPEND pictures --raw=${picture})
    endif()
  endforeach()

  add_custom_command(OUTPUT ${folder}/${name}.ico ${renderings}
                     COMMAND ${TALLYREX_ICOTOOL} --create --output=${folder}/${name}.ico ${pictures}
                     DEPENDS ${sources}
                     COMMENT "Rendering the icon ${name}"
                     VERBATIM)
endfunction()
