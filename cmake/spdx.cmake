# Collects packages, files and relations, and writes them as an SPDX 2.3 document in JSON.
set_property(GLOBAL PROPERTY spdx_packages)
set_property(GLOBAL PROPERTY spdx_files)
set_property(GLOBAL PROPERTY spdx_relations)

# Sets `result` to the text as a JSON string.
function(spdx_text result text)
    string(REPLACE "\\" "\\\\" text "${text}")
    string(REPLACE "\"" "\\\"" text "${text}")
    set(${result} "\"${text}\"" PARENT_SCOPE)
endfunction()

function(spdx_identifier result text)
    string(REGEX REPLACE "[^A-Za-z0-9.]" "-" text "${text}")
    set(${result} "SPDXRef-${text}" PARENT_SCOPE)
endfunction()

# Adds a package and sets `result` to its identifier. `file` is the package's file, or empty.
function(spdx_add_package result name version file)
    spdx_identifier(id "package-${name}")
    set(${result} ${id} PARENT_SCOPE)
    get_property(known GLOBAL PROPERTY spdx_package_ids)
    if(id IN_LIST known)
        return()
    endif()
    set_property(GLOBAL APPEND PROPERTY spdx_package_ids ${id})
    spdx_text(name_text ${name})
    spdx_text(version_text ${version})
    set(entry "\"SPDXID\": \"${id}\", \"name\": ${name_text}, \"versionInfo\": ${version_text}, ")
    if(file)
        file(SHA256 ${file} checksum)
        string(APPEND entry
               "\"packageFileName\": ${name_text}, \"licenseDeclared\": \"LicenseRef-unlicensed\", "
               "\"supplier\": \"Organization: Quillmark\", \"checksums\": "
               "[{\"algorithm\": \"SHA256\", \"checksumValue\": \"${checksum}\"}], ")
    else()
        string(APPEND entry "\"licenseDeclared\": \"NOASSERTION\", ")
    endif()
    string(APPEND entry "\"downloadLocation\": \"NOASSERTION\", \"filesAnalyzed\": false, "
           "\"licenseConcluded\": \"NOASSERTION\", \"copyrightText\": \"NOASSERTION\"")
    set_property(GLOBAL APPEND PROPERTY spdx_packages "{${entry}}")
endfunction()

function(spdx_relate from relation to)
    set_property(GLOBAL APPEND PROPERTY spdx_relations
                 "{\"spdxElementId\": \"${from}\", \"relationshipType\": \"${relation}\", \"relatedSpdxElement\": \"${to}\"}")
endfunction()

# Adds all files below a directory as files of a package.
function(spdx_add_files package directory)
    file(GLOB_RECURSE files RELATIVE ${directory} ${directory}/*)
    foreach(file ${files})
        file(SHA1 ${directory}/${file} sha1)
        file(SHA256 ${directory}/${file} sha256)
        string(SHA1 place "${package}/${file}")
        spdx_text(name "./${file}")
        set_property(GLOBAL APPEND PROPERTY spdx_files
                     "{\"SPDXID\": \"SPDXRef-file-${place}\", \"fileName\": ${name}, \"licenseConcluded\": \"NOASSERTION\", \"copyrightText\": \"NOASSERTION\", \"checksums\": [{\"algorithm\": \"SHA1\", \"checksumValue\": \"${sha1}\"}, {\"algorithm\": \"SHA256\", \"checksumValue\": \"${sha256}\"}]}")
        spdx_relate(${package} CONTAINS SPDXRef-file-${place})
    endforeach()
endfunction()

function(spdx_write file name)
    foreach(list packages files relations)
        get_property(${list} GLOBAL PROPERTY spdx_${list})
        list(JOIN ${list} ",\n" ${list})
    endforeach()
    # The time is that of SOURCE_DATE_EPOCH, if that is set.
    string(TIMESTAMP created "%Y-%m-%dT%H:%M:%SZ" UTC)
    string(SHA1 digest "${packages}")
    spdx_text(name_text "${name}")
    set(document "{\"spdxVersion\": \"SPDX-2.3\", \"dataLicense\": \"CC0-1.0\", \"SPDXID\": \"SPDXRef-DOCUMENT\", \"name\": ${name_text}, \"documentNamespace\": \"urn:dochtml:${digest}\", \"creationInfo\": {\"created\": \"${created}\", \"creators\": [\"Tool: CMake-${CMAKE_VERSION}\", \"Organization: Quillmark\"]},\n\"hasExtractedLicensingInfos\": [{\"licenseId\": \"LicenseRef-unlicensed\", \"name\": \"unlicensed\", \"extractedText\": \"No licence has been granted yet; ask the owner.\"}],\n\"packages\": [${packages}],\n\"files\": [${files}],\n\"relationships\": [${relations}]}\n")
    # Fails if this is not JSON.
    string(JSON count LENGTH "${document}" packages)
    file(WRITE ${file} "${document}")
    message(STATUS "${count} packages in ${file}")
endfunction()
