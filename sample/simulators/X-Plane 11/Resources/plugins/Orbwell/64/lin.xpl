This is a stand-in, not the Orbwell plugin. The maker's build puts the real
X-Plane plugin for Linux
here before the program is shipped. The simulator cannot load this file.
