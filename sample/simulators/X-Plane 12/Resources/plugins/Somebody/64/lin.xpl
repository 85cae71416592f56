This is a stand-in for another add-on's plugin.
