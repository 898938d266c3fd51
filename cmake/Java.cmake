# The JDK whose compiler is found, unless JAVA_HOME names another: its headers, beside its programs.
find_package(Java 17 REQUIRED COMPONENTS Development)
if(NOT DEFINED JAVA_HOME AND NOT DEFINED ENV{JAVA_HOME})
  file(REAL_PATH ${Java_JAVAC_EXECUTABLE} javac)
  cmake_path(GET javac PARENT_PATH bin)
  cmake_path(GET bin PARENT_PATH JAVA_HOME)
endif()
find_package(JNI REQUIRED COMPONENTS JVM)
