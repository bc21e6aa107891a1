using System.Collections.Generic;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Header;

/// <summary>The fields of the header section in their order. Source: Open Design Specification for .dwg files, 5.4.1,
/// chapter 9.</summary>
internal static class HeaderFields
{
    private const int First = 1994;
    private const int Last = int.MaxValue;

    /// <summary>Gets the list, which reading and writing walk.</summary>
    internal static HeaderField[] All { get; } =
    [
        .. In(2013, Last, "BLL REQUIREDVERSIONS"),
        .. In(First, Last, "BD unit1 =412148564080", "BD unit2 =1", "BD unit3 =1", "BD unit4 =1", "T unitName1",
            "T unitName2", "T unitName3", "T unitName4", "BL unknown8 =24", "BL unknown9"),
        .. In(First, 1997, "BS unknown10"),
        .. In(First, 2000, "H currentViewport"),
        .. In(First, Last, "B DIMASO =1", "B DIMSHO =1"),
        .. In(First, 1997, "B dimsav"),
        .. In(First, Last, "B PLINEGEN", "B ORTHOMODE", "B REGENMODE =1", "B FILLMODE =1", "B QTEXTMODE",
            "B PSLTSCALE =1", "B LIMCHECK"),
        .. In(First, 1997, "B BLIPMODE"),
        .. In(2004, Last, "B unknown11"),
        .. In(First, Last, "B USRTIMER =1", "B SKPOLY", "B ANGDIR", "B SPLFRAME"),
        .. In(First, 1997, "B ATTREQ =1", "B ATTDIA"),
        .. In(First, Last, "B MIRRTEXT", "B WORLDVIEW =1"),
        .. In(First, 1997, "B wireframe"),
        .. In(First, Last, "B TILEMODE =1", "B PLIMCHECK", "B VISRETAIN =1"),
        .. In(First, 1997, "B DELOBJ =1"),
        .. In(First, Last, "B DISPSILH", "B pellipse", "BS PROXYGRAPHICS =1"),
        .. In(First, 1997, "BS DRAGMODE =2"),
        .. In(First, Last, "BS TREEDEPTH =3020", "BS LUNITS =2", "BS LUPREC =4", "BS AUNITS", "BS AUPREC"),
        .. In(First, 1997, "BS OSMODE"),
        .. In(First, Last, "BS ATTMODE =1"),
        .. In(First, 1997, "BS COORDS =1"),
        .. In(First, Last, "BS PDMODE"),
        .. In(First, 1997, "BS PICKSTYLE =1"),
        .. In(2004, Last, "BL unknown12", "BL unknown13", "BL unknown14"),
        .. In(First, Last, "BS USERI1", "BS USERI2", "BS USERI3", "BS USERI4", "BS USERI5", "BS SPLINESEGS =8",
            "BS SURFU =6", "BS SURFV =6", "BS SURFTYPE =6", "BS SURFTAB1 =6", "BS SURFTAB2 =6", "BS SPLINETYPE =6",
            "BS SHADEDGE =3", "BS SHADEDIF =70", "BS UNITMODE", "BS MAXACTVP =64", "BS isolines =4", "BS CMLJUST",
            "BS textqlty =50", "BD LTSCALE =1", "BD TEXTSIZE =0.2", "BD TRACEWID =0.05", "BD SKETCHINC =0.1",
            "BD FILLETRAD", "BD THICKNESS", "BD ANGBASE :50", "BD PDSIZE", "BD PLINEWID", "BD USERR1", "BD USERR2",
            "BD USERR3", "BD USERR4", "BD USERR5", "BD CHAMFERA", "BD CHAMFERB", "BD CHAMFERC", "BD CHAMFERD",
            "BD facetres =0.5", "BD CMLSCALE =1", "BD CELTSCALE =1", "T MENU",
            "TIME TDUCREATE", "TIME TDUUPDATE"),
        .. In(2004, Last, "BL unknown15", "BL unknown16", "BL unknown17"),
        .. In(First, Last, "TIME TDINDWG", "TIME TDUSRTIMER", "CMC CECOLOR :62 =256", "OH HANDSEED", "H CLAYER :8",
            "H TEXTSTYLE :7", "H CELTYPE :6"),
        .. In(2007, Last, "H CMATERIAL :347"),
        .. In(First, Last, "H DIMSTYLE", "H CMLSTYLE"),
        .. In(2000, Last, "BD PSVPSCALE"),
        .. In(First, Last, Space("P")),
        .. In(2000, Last, OrthographicSpace("P")),
        .. In(First, Last, Space("")),
        .. In(2000, Last, OrthographicSpace("")),
        .. In(2000, Last, "T DIMPOST", "T DIMAPOST"),
        .. DimensionsUntil1997(),
        .. In(First, Last, "BD DIMSCALE =1", "BD DIMASZ =0.18", "BD DIMEXO =0.0625", "BD DIMDLI =0.38",
            "BD DIMEXE =0.18", "BD DIMRND", "BD DIMDLE", "BD DIMTP", "BD DIMTM"),
        .. In(2007, Last, "BD DIMFXL =1", "BD DIMJOGANG =0.785398163397448", "BS DIMTFILL", "CMC DIMTFILLCLR"),
        .. In(2000, Last, "B DIMTOL", "B DIMLIM", "B DIMTIH =1", "B DIMTOH =1", "B DIMSE1", "B DIMSE2", "BS DIMTAD",
            "BS DIMZIN", "BS DIMAZIN"),
        .. In(2007, Last, "BS DIMARCSYM"),
        .. In(First, Last, "BD DIMTXT =0.18", "BD DIMCEN =0.09", "BD DIMTSZ", "BD DIMALTF =25.4", "BD DIMLFAC =1",
            "BD DIMTVP", "BD DIMTFAC =1", "BD DIMGAP =0.09"),
        .. In(First, 1997, "T DIMPOST", "T DIMAPOST", "T DIMBLK", "T DIMBLK1", "T DIMBLK2"),
        .. DimensionsSince2000(),
        .. Tables(),
        .. In(2000, Last, "BS tstackalign =1", "BS tstacksize =70", "T HYPERLINKBASE", "T STYLESHEET", "H layouts",
            "H plotSettings", "H plotStyles"),
        .. In(2004, Last, "H materials", "H colors"),
        .. In(2007, Last, "H visualStyles"),
        .. In(2013, Last, "H unknown20"),
        .. In(2000, Last, "FLAGS flags", "BS INSUNITS", "BS CEPSNTYPE :380", "H CEPSNID :390", "T FINGERPRINTGUID :2",
            "T VERSIONGUID :2"),
        .. In(2004, Last, "RC SORTENTS =127", "RC INDEXCTL", "RC HIDETEXT =1"),
        .. In(2004, 2007, "RC XCLIPFRAME :290"),
        .. In(2010, Last, "RC XCLIPFRAME"),
        .. In(2004, Last, "RC DIMASSOC =2", "RC HALOGAP", "BS OBSCOLOR =257", "BS INTERSECTIONCOLOR =257",
            "RC OBSLTYPE", "RC INTERSECTIONDISPLAY", "T PROJECTNAME"),
        .. In(First, Last, "H paperSpace", "H modelSpace", "H byLayer", "H byBlock", "H continuous"),
        .. Views(),
        .. In(1997, 2004, "BS unknown54 =65535", "BS unknown55 =65535", "BS unknown56 =65535", "BS unknown57 =65535"),
    ];

    private static string[] Space(string prefix) =>
    [
        $"3BD {prefix}INSBASE", $"3BD {prefix}EXTMIN", $"3BD {prefix}EXTMAX", $"2RD {prefix}LIMMIN",
        $"2RD {prefix}LIMMAX", $"BD {prefix}ELEVATION", $"3BD {prefix}UCSORG", $"3BD {prefix}UCSXDIR",
        $"3BD {prefix}UCSYDIR", $"H {prefix}UCSNAME",
    ];

    private static string[] OrthographicSpace(string prefix) =>
    [
        $"H {prefix}UCSORTHOREF", $"BS {prefix}UCSORTHOVIEW", $"H {prefix}UCSBASE", $"3BD {prefix}UCSORGTOP",
        $"3BD {prefix}UCSORGBOTTOM", $"3BD {prefix}UCSORGLEFT", $"3BD {prefix}UCSORGRIGHT",
        $"3BD {prefix}UCSORGFRONT", $"3BD {prefix}UCSORGBACK",
    ];

    private static HeaderField[] DimensionsUntil1997() => In(First, 1997, "B DIMTOL", "B DIMLIM", "B DIMTIH =1",
        "B DIMTOH =1", "B DIMSE1", "B DIMSE2", "B DIMALT", "B DIMTOFL", "B DIMSAH", "B DIMTIX", "B DIMSOXD",
        "RC DIMALTD :70 =2", "RC DIMZIN :70", "B DIMSD1", "B DIMSD2", "RC DIMTOLJ :70 =1", "RC DIMJUST :70",
        "RC DIMFIT :70 =3", "B DIMUPT", "RC DIMTZIN :70", "RC DIMALTZ :70", "RC DIMALTTZ :70", "RC DIMTAD :70",
        "BS DIMUNIT =2", "BS DIMAUNIT", "BS DIMDEC =4", "BS DIMTDEC =4", "BS DIMALTU =2", "BS DIMALTTD =2",
        "H DIMTXSTY :7");

    private static HeaderField[] DimensionsSince2000() =>
    [
        .. In(2000, Last, "BD DIMALTRND", "B DIMALT", "BS DIMALTD =2", "B DIMTOFL", "B DIMSAH", "B DIMTIX",
            "B DIMSOXD"),
        .. In(First, Last, "CMC DIMCLRD", "CMC DIMCLRE", "CMC DIMCLRT"),
        .. In(2000, Last, "BS DIMADEC", "BS DIMDEC =4", "BS DIMTDEC =4", "BS DIMALTU =2", "BS DIMALTTD =2",
            "BS DIMAUNIT", "BS DIMFRAC", "BS DIMLUNIT =2", "BS DIMDSEP =46", "BS DIMTMOVE", "BS DIMJUST", "B DIMSD1",
            "B DIMSD2", "BS DIMTOLJ =1", "BS DIMTZIN", "BS DIMALTZ", "BS DIMALTTZ", "B DIMUPT", "BS DIMATFIT =3"),
        .. In(2007, Last, "B DIMFXLON"),
        .. In(2010, Last, "B DIMTXTDIRECTION", "BD dimaltmzf =100", "T dimaltmzs", "BD dimmzf =100", "T dimmzs"),
        .. In(2000, Last, "H DIMTXSTY :7", "H DIMLDRBLK :1", "H DIMBLK :1", "H DIMBLK1 :1", "H DIMBLK2 :1"),
        .. In(2007, Last, "H DIMLTYPE :6", "H DIMLTEX1 :6", "H DIMLTEX2 :6"),
        .. In(2000, Last, "BS DIMLWD =-2", "BS DIMLWE =-2"),
    ];

    private static HeaderField[] Tables() =>
    [
        .. In(First, Last, "H blockTable @3", "H layerTable @3", "H styleTable @3", "H lineTypeTable @3",
            "H viewTable @3", "H ucsTable @3", "H viewportTable @3", "H appIdTable @3", "H dimensionStyleTable @3"),
        .. In(First, 2000, "H viewportEntityTable @3"),
        .. In(First, Last, "H groups", "H multilineStyles", "H namedObjects @3"),
    ];

    private static HeaderField[] Views() => In(2007, Last, "B CAMERADISPLAY :290", "BL unknown21", "BL unknown22",
        "BD unknown23", "BD STEPSPERSEC =2", "BD STEPSIZE =6", "BD 3DDWFPREC =2", "BD LENSLENGTH =50",
        "BD CAMERAHEIGHT", "RC SOLIDHIST =1", "RC SHOWHIST =1", "BD PSOLWIDTH =0.25", "BD PSOLHEIGHT =4",
        "BD LOFTANG1 =1.5707963267949", "BD LOFTANG2 =1.5707963267949", "BD LOFTMAG1", "BD LOFTMAG2",
        "BS LOFTPARAM =7", "RC LOFTNORMALS =1", "BD LATITUDE =37.795", "BD LONGITUDE =-122.394", "BD NORTHDIRECTION",
        "BL TIMEZONE =-8000", "RC LIGHTGLYPHDISPLAY =1", "RC TILEMODELIGHTSYNCH =1", "RC DWFFRAME =2",
        "RC DGNFRAME", "B REALWORLDSCALE :290 =1", "CMC INTERFERECOLOR :62 =1", "H INTERFEREOBJVS :345",
        "H INTERFEREVPVS :346", "H DRAGVS :349", "RC CSHADOW", "BD SHADOWPLANELOCATION");

    private static HeaderField[] In(int since, int until, params string[] fields)
    {
        List<HeaderField> list = [];
        foreach (string field in fields)
        {
            list.Add(HeaderField.Parse(field, since, until));
        }

        return [.. list];
    }
}
