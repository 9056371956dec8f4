# Builds mirrored engine modules, plugin runtime stand-ins and the product module the way
# Unreal Build Tool lays them out: one shared library per module, Public/ exported to
# dependants, Private/ kept to the module, reflected headers run through the header tool.
#
# A mirrored module may also have a Headless/ folder: the controls and observers that the test
# instruments use (recorded dialogs, counters, resets). The engine has none of it, so Headless/ is
# seen only by the module itself and by HeadlessTesting, never by the modules that depend on it.

set(UE_GENERATED_ROOT "${CMAKE_BINARY_DIR}/Generated")

# Headers that hold reflected types (UCLASS, USTRUCT, UENUM) need the header tool.
function(_ue_collect_reflected_headers OutList)
	set(Reflected "")
	foreach(Header IN LISTS ARGN)
		file(STRINGS "${Header}" Hits REGEX "^[ \t]*(UCLASS|USTRUCT|UENUM|UINTERFACE)[ \t]*\\(")
		if(Hits)
			list(APPEND Reflected "${Header}")
		endif()
	endforeach()
	set(${OutList} "${Reflected}" PARENT_SCOPE)
endfunction()

# ue_add_module(<Name> DIRECTORY <dir> [PUBLIC_DEPS ...] [PRIVATE_DEPS ...] [WARNINGS_AS_ERRORS])
function(ue_add_module Name)
	cmake_parse_arguments(ARG "WARNINGS_AS_ERRORS" "DIRECTORY" "PUBLIC_DEPS;PRIVATE_DEPS" ${ARGN})
	if(NOT ARG_DIRECTORY)
		set(ARG_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}")
	endif()

	file(GLOB_RECURSE Sources CONFIGURE_DEPENDS "${ARG_DIRECTORY}/Private/*.cpp" "${ARG_DIRECTORY}/Public/*.cpp")
	file(GLOB_RECURSE Headers CONFIGURE_DEPENDS "${ARG_DIRECTORY}/Public/*.h" "${ARG_DIRECTORY}/Private/*.h")

	_ue_collect_reflected_headers(Reflected ${Headers})
	set(GeneratedDir "${UE_GENERATED_ROOT}/${Name}")
	set(GeneratedSources "")
	set(GeneratedHeaders "")
	foreach(Header IN LISTS Reflected)
		get_filename_component(Base "${Header}" NAME_WE)
		list(APPEND GeneratedHeaders "${GeneratedDir}/Inc/${Base}.generated.h")
		list(APPEND GeneratedSources "${GeneratedDir}/Src/${Base}.gen.cpp")
	endforeach()
	if(Reflected)
		add_custom_command(
			OUTPUT ${GeneratedHeaders} ${GeneratedSources}
			COMMAND HeaderTool --module ${Name} --output "${GeneratedDir}" ${Reflected}
			DEPENDS HeaderTool ${Reflected}
			COMMENT "Generating reflection code for ${Name}"
			VERBATIM)
	endif()

	add_library(${Name} SHARED ${Sources} ${GeneratedSources} ${GeneratedHeaders})
	string(TOUPPER "${Name}" Upper)
	target_compile_definitions(${Name}
		PRIVATE "${Upper}_API=__attribute__((visibility(\"default\")))" "UE_MODULE_NAME=\"${Name}\""
		INTERFACE "${Upper}_API=")
	target_include_directories(${Name}
		PUBLIC "${ARG_DIRECTORY}/Public" "${GeneratedDir}/Inc"
		PRIVATE "${ARG_DIRECTORY}/Private")
	if(EXISTS "${ARG_DIRECTORY}/Classes")
		target_include_directories(${Name} PUBLIC "${ARG_DIRECTORY}/Classes")
	endif()
	if(EXISTS "${ARG_DIRECTORY}/Headless")
		target_include_directories(${Name} PRIVATE "${ARG_DIRECTORY}/Headless")
		file(GLOB_RECURSE InstrumentHeaders CONFIGURE_DEPENDS "${ARG_DIRECTORY}/Headless/*.h")
		target_sources(${Name} PRIVATE ${InstrumentHeaders})
		set_property(GLOBAL APPEND PROPERTY HEADLESS_INSTRUMENT_DIRS "${ARG_DIRECTORY}/Headless")
	endif()
	target_link_libraries(${Name} PUBLIC ${ARG_PUBLIC_DEPS} PRIVATE ${ARG_PRIVATE_DEPS})
	set_target_properties(${Name} PROPERTIES
		OUTPUT_NAME "UnrealEditor-${Name}"
		LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/Binaries")
	set_property(GLOBAL APPEND PROPERTY HEADLESS_EDITOR_MODULES ${Name})
	if(ARG_WARNINGS_AS_ERRORS)
		target_compile_options(${Name} PRIVATE -Wall -Wextra -Werror -Wno-unused-parameter)
	else()
		# Engine and runtime headers are someone else's code to the product: their warnings are not its own.
		set_target_properties(${Name} PROPERTIES SYSTEM ON)
	endif()
endfunction()

# Reads "<Name>.Build.cs" and gives the module exactly the modules listed there.
function(ue_add_module_from_build_cs Directory)
	get_filename_component(Name "${Directory}" NAME)
	set(BuildCs "${Directory}/${Name}.Build.cs")
	if(NOT EXISTS "${BuildCs}")
		message(FATAL_ERROR "${BuildCs} not found")
	endif()
	set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${BuildCs}")
	file(READ "${BuildCs}" Text)
	# Drop // comments so that a commented-out dependency is not linked.
	string(REGEX REPLACE "//[^\n]*" "" Text "${Text}")

	foreach(Kind Public Private)
		set(Deps "")
		string(REGEX MATCHALL "${Kind}DependencyModuleNames[ \t\r\n]*\\.[ \t\r\n]*AddRange[ \t\r\n]*\\([^;]*;" Blocks "${Text}")
		string(REGEX MATCHALL "${Kind}DependencyModuleNames[ \t\r\n]*\\.[ \t\r\n]*Add[ \t\r\n]*\\([^;]*;" Singles "${Text}")
		foreach(Block IN LISTS Blocks Singles)
			string(REGEX MATCHALL "\"[A-Za-z0-9_]+\"" Quoted "${Block}")
			foreach(Item IN LISTS Quoted)
				string(REPLACE "\"" "" Item "${Item}")
				list(APPEND Deps "${Item}")
			endforeach()
		endforeach()
		list(REMOVE_DUPLICATES Deps)
		foreach(Dep IN LISTS Deps)
			if(NOT TARGET ${Dep})
				message(FATAL_ERROR "${Name}.Build.cs lists module '${Dep}', which the headless editor does not provide")
			endif()
		endforeach()
		set(${Kind}Deps "${Deps}")
	endforeach()

	message(STATUS "${Name}: public ${PublicDeps}; private ${PrivateDeps}")
	ue_add_module(${Name} DIRECTORY "${Directory}"
		PUBLIC_DEPS ${PublicDeps}
		PRIVATE_DEPS ${PrivateDeps}
		WARNINGS_AS_ERRORS)
endfunction()
