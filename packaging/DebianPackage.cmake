# `cpack -G DEB` in a build folder makes lapdesk_<version>_<arch>.deb of
# everything `cmake --install` puts under /usr. dpkg-shlibdeps finds the
# library packages the programs need.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME lapdesk)
set(CPACK_PACKAGE_VENDOR "Laplace Desk maintainers")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY
  "numerical inverse Laplace transforms with a complex-number calculator")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${LAPDESK_MAINTAINER}")
set(CPACK_DEBIAN_PACKAGE_SECTION math)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Every text of the windows is Japanese, Qt's own dialog texts included.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
  "fonts-noto-cjk | fonts-ipafont-gothic | fonts-vlgothic, qt6-translations-l10n")
# The long description; CPack puts the summary above it.
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "Laplace Desk computes f(t) from its Laplace transform F(s)
numerically: F is sampled on a line parallel to the imaginary axis, optionally
tapered by a Hanning window and inverted with a radix-2 FFT. F(p) is written
as a short program in the tool's own complex-number language, or sampled
values are read from a data file; f(t) is plotted and written as a table.
An accurate mode (de Hoog, Knight and Stokes), an error band and a
singularity warning show how far f(t) can be trusted.
.
The package holds the desktop application lapdesk (the transform window and
the calculator window, Japanese user interface), the command-line tool
lapdesk-cli with the verbs calc, run, invert and read, and example programs.")

include(CPack)
