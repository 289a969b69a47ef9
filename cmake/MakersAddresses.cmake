# The maker: where the program points when no branding file says otherwise, and where it asks for newer versions.
# Set here or at configure time; nowhere else in the sources stands an address of the maker.
set(TESSALOOM_COMPANY_NAME "Ostrevane" CACHE STRING "Company name in menus and messages")
set(TESSALOOM_COMPANY_URL "https://www.ostrevane.example/" CACHE STRING "The maker's homepage")
set(TESSALOOM_SUPPORT_EMAIL "support@ostrevane.example" CACHE STRING "Technical support; feedback goes there")
set(TESSALOOM_SUPPORT_URL "https://www.ostrevane.example/contact" CACHE STRING "The maker's contact page")
set(TESSALOOM_SUBSCRIBE_EMAIL "subscribe@ostrevane.example" CACHE STRING "Where to subscribe to the mailing list")
set(TESSALOOM_ERROR_REPORT_EMAIL "errors@ostrevane.example" CACHE STRING "Where error reports go")
set(TESSALOOM_UPDATE_HOST "https://update.ostrevane.example" CACHE STRING "The version-check server, with its scheme")
