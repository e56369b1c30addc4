# VTK for all who draw with it or are measured against it. It is looked for once, up here: its targets
# come into the folder that looks for any of them, but what they link only with the components asked for.
find_package(VTK 9.1 QUIET
    COMPONENTS CommonCore CommonDataModel FiltersCore FiltersSources RenderingCore RenderingOpenGL2
        RenderingFreeType RenderingContext2D RenderingContextOpenGL2 IOImage
    OPTIONAL_COMPONENTS FiltersGeometry IOParallel IOXML)
