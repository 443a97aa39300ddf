# Warnings, Qt hygiene and the optional sanitizer build, applied to every target.

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wcast-align -Wimplicit-fallthrough
                    # The C is generated protocol code; these concern C++ alone.
                    "$<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor;-Wold-style-cast;-Woverloaded-virtual>")

add_compile_definitions(
    QT_NO_KEYWORDS
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_URL_CAST_FROM_STRING
    QT_USE_QSTRINGBUILDER
    QT_DISABLE_DEPRECATED_UP_TO=0x060400)

if(VELTO_SANITIZE)
    set(_velto_sanitizers -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    add_compile_options(${_velto_sanitizers})
    add_link_options(-fsanitize=address,undefined)
endif()

# The core library carries every decision of the system and must build and test without a GUI stack.
# Linking is checked here; the sources are scanned so a GUI header cannot sneak in through an include path.
function(velto_require_core_only target)
    get_target_property(_libs ${target} LINK_LIBRARIES)
    foreach(_lib IN LISTS _libs)
        if(_lib MATCHES "^Qt6?::" AND NOT _lib MATCHES "^Qt6?::Core$")
            message(FATAL_ERROR "${target} may link Qt6::Core only, not ${_lib}")
        endif()
    endforeach()
    get_target_property(_sources ${target} SOURCES)
    get_target_property(_dir ${target} SOURCE_DIR)
    foreach(_src IN LISTS _sources)
        if(NOT IS_ABSOLUTE "${_src}")
            set(_src "${_dir}/${_src}")
        endif()
        if(NOT EXISTS "${_src}")
            continue()
        endif()
        file(STRINGS "${_src}" _hits REGEX
             "#[ \t]*include[ \t]*<(Qt(Gui|Widgets|Quick|Qml|DBus|Network|Multimedia|Svg)/|Q(Gui)?Application|QColor|QWidget|QScreen|QWindow)|Q_OS_")
        if(_hits)
            message(FATAL_ERROR "${_src} reaches beyond QtCore or asks for the platform: ${_hits}")
        endif()
    endforeach()
endfunction()
