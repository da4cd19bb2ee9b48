# SPDX-License-Identifier: MIT
# Translations of the texts of the library. Each is a source in translations/, compiled into the build folder.
# The target update_translations takes new texts of the library into the sources.
find_package(Qt5 5.15 REQUIRED COMPONENTS LinguistTools)

set(translation_sources ${PROJECT_SOURCE_DIR}/translations/tavro_zh_CN.ts)
set(translations_build_dir ${PROJECT_BINARY_DIR}/translations)
set(translations_install_dir ${CMAKE_INSTALL_DATADIR}/tavro/translations)

set_source_files_properties(${translation_sources} PROPERTIES OUTPUT_LOCATION ${translations_build_dir})
qt5_add_translation(translations ${translation_sources} OPTIONS -silent)
add_custom_target(tavro_translations ALL DEPENDS ${translations})

# What is searched for texts: everything that the library is made of.
set(library_sources $<TARGET_PROPERTY:tavro_pure,SOURCES> $<TARGET_PROPERTY:tavro_items,SOURCES>)
set(library_sources "$<FILTER:${library_sources},EXCLUDE,[.]qrc$|_autogen/>")
file(GENERATE OUTPUT ${translations_build_dir}/sources.lst
    CONTENT "-I${PROJECT_SOURCE_DIR}\n${PROJECT_SOURCE_DIR}/$<JOIN:${library_sources},\n${PROJECT_SOURCE_DIR}/>\n")
set(lupdate_command
    $<TARGET_FILE:Qt5::lupdate> -silent -no-obsolete -locations none @${translations_build_dir}/sources.lst -ts)
add_custom_target(update_translations COMMAND ${lupdate_command} ${translation_sources} VERBATIM)

install(FILES ${translations} DESTINATION ${translations_install_dir} COMPONENT library)
