# ordwise_layer(NAME FOLDER LEFT): a static library of all sources of one folder.
#
# Its public include path is its own folder and it links the layer to its left, so a header is
# included by its bare name and an include from the right does not compile.
function(ordwise_layer name folder left)
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp)
  if(sources)
    add_library(ordwise_${name} STATIC ${sources})
    target_include_directories(ordwise_${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR}/${folder})
    target_link_libraries(ordwise_${name} PRIVATE ordwise_flags)
    if(left)
      target_link_libraries(ordwise_${name} PUBLIC ordwise_${left})
    endif()
  else()
    add_library(ordwise_${name} INTERFACE)
    target_include_directories(ordwise_${name} INTERFACE ${CMAKE_CURRENT_SOURCE_DIR}/${folder})
    if(left)
      target_link_libraries(ordwise_${name} INTERFACE ordwise_${left})
    endif()
  endif()
endfunction()
