#pragma once

namespace quillmark::registration_scripts {

/// The texts of dochtml.rgs and html_com_page.rgs. They are compiled in, because this system has no
/// resources.
extern const char* const driver;
extern const char* const page;

}  // namespace quillmark::registration_scripts
