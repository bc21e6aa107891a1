using System.Collections.Generic;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>The releases that variables came with.</summary>
internal static class HeaderVariables
{
    private static readonly HashSet<string> Since2004 =
    [
        "$SORTENTS", "$INDEXCTL", "$HIDETEXT", "$XCLIPFRAME", "$HALOGAP", "$OBSCOLOR", "$OBSLTYPE",
        "$INTERSECTIONDISPLAY", "$INTERSECTIONCOLOR", "$DIMASSOC", "$PROJECTNAME", "$LASTSAVEDBY",
    ];

    private static readonly HashSet<string> Since2007 =
    [
        "$CAMERADISPLAY", "$LENSLENGTH", "$CAMERAHEIGHT", "$STEPSPERSEC", "$STEPSIZE", "$3DDWFPREC", "$PSOLWIDTH",
        "$PSOLHEIGHT", "$LOFTANG1", "$LOFTANG2", "$LOFTMAG1", "$LOFTMAG2", "$LOFTPARAM", "$LOFTNORMALS", "$LATITUDE",
        "$LONGITUDE", "$NORTHDIRECTION", "$TIMEZONE", "$LIGHTGLYPHDISPLAY", "$TILEMODELIGHTSYNCH", "$CMATERIAL",
        "$SOLIDHIST", "$SHOWHIST", "$DWFFRAME", "$DGNFRAME", "$REALWORLDSCALE", "$INTERFERECOLOR", "$INTERFEREOBJVS",
        "$INTERFEREVPVS", "$CSHADOW", "$SHADOWPLANELOCATION", "$DIMFXL", "$DIMFXLON", "$DIMJOGANG", "$DIMTFILL",
        "$DIMTFILLCLR", "$DIMARCSYM", "$DIMLTYPE", "$DIMLTEX1", "$DIMLTEX2",
    ];

    private static readonly HashSet<string> Since2010 = ["$DIMTXTDIRECTION"];

    /// <summary>Gives the year of the release that a variable came with, or 0 where releases from 2000 on have
    /// it.</summary>
    internal static int Since(string name) => name switch
    {
        _ when Since2004.Contains(name) => 2004,
        _ when Since2007.Contains(name) => 2007,
        _ when Since2010.Contains(name) => 2010,
        _ => 0,
    };
}
