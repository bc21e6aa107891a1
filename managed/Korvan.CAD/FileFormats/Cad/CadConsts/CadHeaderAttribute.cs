using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>The variables of drawings.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadHeaderAttribute
{
    /// <summary>No variable.</summary>
    None = 0,

    /// <summary>$ACADMAINTVER.</summary>
    Acadmaintver = 1,

    /// <summary>$ACADVER.</summary>
    Acadver = 2,

    /// <summary>$ANGBASE.</summary>
    Angbase = 3,

    /// <summary>$ANGDIR.</summary>
    Angdir = 4,

    /// <summary>$ATTMODE.</summary>
    Attmode = 5,

    /// <summary>$AUNITS.</summary>
    Aunits = 6,

    /// <summary>$AUPREC.</summary>
    Auprec = 7,

    /// <summary>$CECOLOR.</summary>
    Cecolor = 8,

    /// <summary>$CELTSCALE.</summary>
    Celtscale = 9,

    /// <summary>$CELTYPE.</summary>
    Celtype = 10,

    /// <summary>$CELWEIGHT.</summary>
    Celweight = 11,

    /// <summary>$CEPSNID.</summary>
    Cepsnid = 12,

    /// <summary>$CEPSNTYPE.</summary>
    Cepsntype = 13,

    /// <summary>$CHAMFERA.</summary>
    Chamfera = 14,

    /// <summary>$CHAMFERB.</summary>
    Chamferb = 15,

    /// <summary>$CHAMFERC.</summary>
    Chamferc = 16,

    /// <summary>$CHAMFERD.</summary>
    Chamferd = 17,

    /// <summary>$CLAYER.</summary>
    Clayer = 18,

    /// <summary>$CMLJUST.</summary>
    Cmljust = 19,

    /// <summary>$CMLSCALE.</summary>
    Cmlscale = 20,

    /// <summary>$CMLSTYLE.</summary>
    Cmlstyle = 21,

    /// <summary>$CSHADOW.</summary>
    Cshadow = 22,

    /// <summary>$DIMADEC.</summary>
    Dimadec = 23,

    /// <summary>$DIMALT.</summary>
    Dimalt = 24,

    /// <summary>$DIMALTD.</summary>
    Dimaltd = 25,

    /// <summary>$DIMALTF.</summary>
    Dimaltf = 26,

    /// <summary>$DIMALTRND.</summary>
    Dimaltrnd = 27,

    /// <summary>$DIMALTTD.</summary>
    Dimalttd = 28,

    /// <summary>$DIMALTTZ.</summary>
    Dimalttz = 29,

    /// <summary>$DIMALTU.</summary>
    Dimaltu = 30,

    /// <summary>$DIMALTZ.</summary>
    Dimaltz = 31,

    /// <summary>$DIMAPOST.</summary>
    Dimapost = 32,

    /// <summary>$DIMASO.</summary>
    Dimaso = 33,

    /// <summary>$DIMASSOC.</summary>
    Dimassoc = 34,

    /// <summary>$DIMASZ.</summary>
    Dimasz = 35,

    /// <summary>$DIMATFIT.</summary>
    Dimatfit = 36,

    /// <summary>$DIMAUNIT.</summary>
    Dimaunit = 37,

    /// <summary>$DIMAZIN.</summary>
    Dimazin = 38,

    /// <summary>$DIMBLK.</summary>
    Dimblk = 39,

    /// <summary>$DIMBLK1.</summary>
    Dimblk1 = 40,

    /// <summary>$DIMBLK2.</summary>
    Dimblk2 = 41,

    /// <summary>$DIMCEN.</summary>
    Dimcen = 42,

    /// <summary>$DIMCLRD.</summary>
    Dimclrd = 43,

    /// <summary>$DIMCLRE.</summary>
    Dimclre = 44,

    /// <summary>$DIMCLRT.</summary>
    Dimclrt = 45,

    /// <summary>$DIMDEC.</summary>
    Dimdec = 46,

    /// <summary>$DIMDLE.</summary>
    Dimdle = 47,

    /// <summary>$DIMDLI.</summary>
    Dimdli = 48,

    /// <summary>$DIMDSEP.</summary>
    Dimdsep = 49,

    /// <summary>$DIMEXE.</summary>
    Dimexe = 50,

    /// <summary>$DIMEXO.</summary>
    Dimexo = 51,

    /// <summary>$DIMFAC.</summary>
    Dimfac = 52,

    /// <summary>$DIMGAP.</summary>
    Dimgap = 53,

    /// <summary>$DIMJUST.</summary>
    Dimjust = 54,

    /// <summary>$DIMLDRBLK.</summary>
    Dimldrblk = 55,

    /// <summary>$DIMLFAC.</summary>
    Dimlfac = 56,

    /// <summary>$DIMLIM.</summary>
    Dimlim = 57,

    /// <summary>$DIMLUNIT.</summary>
    Dimlunit = 58,

    /// <summary>$DIMLWD.</summary>
    Dimlwd = 59,

    /// <summary>$DIMLWE.</summary>
    Dimlwe = 60,

    /// <summary>$DIMPOST.</summary>
    Dimpost = 61,

    /// <summary>$DIMRND.</summary>
    Dimrnd = 62,

    /// <summary>$DIMSAH.</summary>
    Dimsah = 63,

    /// <summary>$DIMSCALE.</summary>
    Dimscale = 64,

    /// <summary>$DIMSD1.</summary>
    Dimsd1 = 65,

    /// <summary>$DIMSD2.</summary>
    Dimsd2 = 66,

    /// <summary>$DIMSE1.</summary>
    Dimse1 = 67,

    /// <summary>$DIMSE2.</summary>
    Dimse2 = 68,

    /// <summary>$DIMSHO.</summary>
    Dimsho = 69,

    /// <summary>$DIMSOXD.</summary>
    Dimsoxd = 70,

    /// <summary>$DIMSTYLE.</summary>
    Dimstyle = 71,

    /// <summary>$DIMTAD.</summary>
    Dimtad = 72,

    /// <summary>$DIMTDEC.</summary>
    Dimtdec = 73,

    /// <summary>$DIMTFAC.</summary>
    Dimtfac = 74,

    /// <summary>$DIMTIH.</summary>
    Dimtih = 75,

    /// <summary>$DIMTIX.</summary>
    Dimtix = 76,

    /// <summary>$DIMTM.</summary>
    Dimtm = 77,

    /// <summary>$DIMTMOVE.</summary>
    Dimtmove = 78,

    /// <summary>$DIMTOFL.</summary>
    Dimtofl = 79,

    /// <summary>$DIMTOH.</summary>
    Dimtoh = 80,

    /// <summary>$DIMTOL.</summary>
    Dimtol = 81,

    /// <summary>$DIMTOLJ.</summary>
    Dimtolj = 82,

    /// <summary>$DIMTP.</summary>
    Dimtp = 83,

    /// <summary>$DIMTSZ.</summary>
    Dimtsz = 84,

    /// <summary>$DIMTVP.</summary>
    Dimtvp = 85,

    /// <summary>$DIMTXSTY.</summary>
    Dimtxsty = 86,

    /// <summary>$DIMTXT.</summary>
    Dimtxt = 87,

    /// <summary>$DIMTZIN.</summary>
    Dimtzin = 88,

    /// <summary>$DIMUPT.</summary>
    Dimupt = 89,

    /// <summary>$DIMZIN.</summary>
    Dimzin = 90,

    /// <summary>$DISPSILH.</summary>
    Dispsilh = 91,

    /// <summary>$DRAGVS.</summary>
    Dragvs = 92,

    /// <summary>$DWGCODEPAGE.</summary>
    Dwgcodepage = 93,

    /// <summary>$ELEVATION.</summary>
    Elevation = 94,

    /// <summary>$ENDCAPS.</summary>
    Endcaps = 95,

    /// <summary>$EXTMAX.</summary>
    Extmax = 96,

    /// <summary>$EXTMIN.</summary>
    Extmin = 97,

    /// <summary>$EXTNAMES.</summary>
    Extnames = 98,

    /// <summary>$FASTZOOM.</summary>
    Fastzoom = 99,

    /// <summary>$FILLETRAD.</summary>
    Filletrad = 100,

    /// <summary>$FILLMODE.</summary>
    Fillmode = 101,

    /// <summary>$FINGERPRINTGUID.</summary>
    Fingerprintguid = 102,

    /// <summary>$GRIDMODE.</summary>
    Gridmode = 103,

    /// <summary>$GRIDUNIT.</summary>
    Gridunit = 104,

    /// <summary>$HALOGAP.</summary>
    Halogap = 105,

    /// <summary>$HANDSEED.</summary>
    Handseed = 106,

    /// <summary>$HIDETEXT.</summary>
    Hidetext = 107,

    /// <summary>$HYPERLINKBASE.</summary>
    Hyperlinkbase = 108,

    /// <summary>$INDEXCTL.</summary>
    Indexctl = 109,

    /// <summary>$INSBASE.</summary>
    Insbase = 110,

    /// <summary>$INSUNITS.</summary>
    Insunits = 111,

    /// <summary>$INTERFERECOLOR.</summary>
    Interferecolor = 112,

    /// <summary>$INTERFEREOBJVS.</summary>
    Interfereobjvs = 113,

    /// <summary>$INTERFEREVPVS.</summary>
    Interferevpvs = 114,

    /// <summary>$INTERSECTIONCOLOR.</summary>
    Intersectioncolor = 115,

    /// <summary>$INTERSECTIONDISPLAY.</summary>
    Intersectiondisplay = 116,

    /// <summary>$JOINSTYLE.</summary>
    Joinstyle = 117,

    /// <summary>$LIMCHECK.</summary>
    Limcheck = 118,

    /// <summary>$LIMMAX.</summary>
    Limmax = 119,

    /// <summary>$LIMMIN.</summary>
    Limmin = 120,

    /// <summary>$LTSCALE.</summary>
    Ltscale = 121,

    /// <summary>$LUNITS.</summary>
    Lunits = 122,

    /// <summary>$LUPREC.</summary>
    Luprec = 123,

    /// <summary>$LWDISPLAY.</summary>
    Lwdisplay = 124,

    /// <summary>$MAXACTVP.</summary>
    Maxactvp = 125,

    /// <summary>$MEASUREMENT.</summary>
    Measurement = 126,

    /// <summary>$MENU.</summary>
    Menu = 127,

    /// <summary>$MIRRTEXT.</summary>
    Mirrtext = 128,

    /// <summary>$OBSCOLOR.</summary>
    Obscolor = 129,

    /// <summary>$OBSLTYPE.</summary>
    Obsltype = 130,

    /// <summary>$ORTHOMODE.</summary>
    Orthomode = 131,

    /// <summary>$PDMODE.</summary>
    Pdmode = 132,

    /// <summary>$PDSIZE.</summary>
    Pdsize = 133,

    /// <summary>$PELEVATION.</summary>
    Pelevation = 134,

    /// <summary>$PEXTMAX.</summary>
    Pextmax = 135,

    /// <summary>$PEXTMIN.</summary>
    Pextmin = 136,

    /// <summary>$PINSBASE.</summary>
    Pinsbase = 137,

    /// <summary>$PLIMCHECK.</summary>
    Plimcheck = 138,

    /// <summary>$PLIMMAX.</summary>
    Plimmax = 139,

    /// <summary>$PLIMMIN.</summary>
    Plimmin = 140,

    /// <summary>$PLINEGEN.</summary>
    Plinegen = 141,

    /// <summary>$PLINEWID.</summary>
    Plinewid = 142,

    /// <summary>$PROJECTNAME.</summary>
    Projectname = 143,

    /// <summary>$PROXYGRAPHICS.</summary>
    Proxygraphics = 144,

    /// <summary>$PSLTSCALE.</summary>
    Psltscale = 145,

    /// <summary>$PSTYLEMODE.</summary>
    Pstylemode = 146,

    /// <summary>$PSVPSCALE.</summary>
    Psvpscale = 147,

    /// <summary>$PUCSBASE.</summary>
    Pucsbase = 148,

    /// <summary>$PUCSNAME.</summary>
    Pucsname = 149,

    /// <summary>$PUCSORG.</summary>
    Pucsorg = 150,

    /// <summary>$PUCSORGBACK.</summary>
    Pucsorgback = 151,

    /// <summary>$PUCSORGBOTTOM.</summary>
    Pucsorgbottom = 152,

    /// <summary>$PUCSORGFRONT.</summary>
    Pucsorgfront = 153,

    /// <summary>$PUCSORGLEFT.</summary>
    Pucsorgleft = 154,

    /// <summary>$PUCSORGRIGHT.</summary>
    Pucsorgright = 155,

    /// <summary>$PUCSORGTOP.</summary>
    Pucsorgtop = 156,

    /// <summary>$PUCSORTHOREF.</summary>
    Pucsorthoref = 157,

    /// <summary>$PUCSORTHOVIEW.</summary>
    Pucsorthoview = 158,

    /// <summary>$PUCSXDIR.</summary>
    Pucsxdir = 159,

    /// <summary>$PUCSYDIR.</summary>
    Pucsydir = 160,

    /// <summary>$QTEXTMODE.</summary>
    Qtextmode = 161,

    /// <summary>$REGENMODE.</summary>
    Regenmode = 162,

    /// <summary>$SHADEDGE.</summary>
    Shadedge = 163,

    /// <summary>$SHADEDIF.</summary>
    Shadedif = 164,

    /// <summary>$SKETCHINC.</summary>
    Sketchinc = 165,

    /// <summary>$SKPOLY.</summary>
    Skpoly = 166,

    /// <summary>$SNAPANG.</summary>
    Snapang = 167,

    /// <summary>$SNAPBASE.</summary>
    Snapbase = 168,

    /// <summary>$SNAPISOPAIR.</summary>
    Snapisopair = 169,

    /// <summary>$SNAPMODE.</summary>
    Snapmode = 170,

    /// <summary>$SNAPSTYLE.</summary>
    Snapstyle = 171,

    /// <summary>$SNAPUNIT.</summary>
    Snapunit = 172,

    /// <summary>$SORTENTS.</summary>
    Sortents = 173,

    /// <summary>$SPLINESEGS.</summary>
    Splinesegs = 174,

    /// <summary>$SPLINETYPE.</summary>
    Splinetype = 175,

    /// <summary>$SURFTAB1.</summary>
    Surftab1 = 176,

    /// <summary>$SURFTAB2.</summary>
    Surftab2 = 177,

    /// <summary>$SURFTYPE.</summary>
    Surftype = 178,

    /// <summary>$SURFU.</summary>
    Surfu = 179,

    /// <summary>$SURFV.</summary>
    Surfv = 180,

    /// <summary>$TDCREATE.</summary>
    Tdcreate = 181,

    /// <summary>$TDINDWG.</summary>
    Tdindwg = 182,

    /// <summary>$TDUCREATE.</summary>
    Tducreate = 183,

    /// <summary>$TDUPDATE.</summary>
    Tdupdate = 184,

    /// <summary>$TDUSRTIMER.</summary>
    Tdusrtimer = 185,

    /// <summary>$TDUUPDATE.</summary>
    Tduupdate = 186,

    /// <summary>$TEXTSIZE.</summary>
    Textsize = 187,

    /// <summary>$TEXTSTYLE.</summary>
    Textstyle = 188,

    /// <summary>$THICKNESS.</summary>
    Thickness = 189,

    /// <summary>$TILEMODE.</summary>
    Tilemode = 190,

    /// <summary>$TRACEWID.</summary>
    Tracewid = 191,

    /// <summary>$TREEDEPTH.</summary>
    Treedepth = 192,

    /// <summary>$UCSBASE.</summary>
    Ucsbase = 193,

    /// <summary>$UCSNAME.</summary>
    Ucsname = 194,

    /// <summary>$UCSORG.</summary>
    Ucsorg = 195,

    /// <summary>$UCSORGBACK.</summary>
    Ucsorgback = 196,

    /// <summary>$UCSORGBOTTOM.</summary>
    Ucsorgbottom = 197,

    /// <summary>$UCSORGFRONT.</summary>
    Ucsorgfront = 198,

    /// <summary>$UCSORGLEFT.</summary>
    Ucsorgleft = 199,

    /// <summary>$UCSORGRIGHT.</summary>
    Ucsorgright = 200,

    /// <summary>$UCSORGTOP.</summary>
    Ucsorgtop = 201,

    /// <summary>$UCSORTHOREF.</summary>
    Ucsorthoref = 202,

    /// <summary>$UCSORTHOVIEW.</summary>
    Ucsorthoview = 203,

    /// <summary>$UCSXDIR.</summary>
    Ucsxdir = 204,

    /// <summary>$UCSYDIR.</summary>
    Ucsydir = 205,

    /// <summary>$UNITMODE.</summary>
    Unitmode = 206,

    /// <summary>$USERI1.</summary>
    Useri1 = 207,

    /// <summary>$USERR1.</summary>
    Userr1 = 208,

    /// <summary>$USRTIMER.</summary>
    Usrtimer = 209,

    /// <summary>$VERSIONGUID.</summary>
    Versionguid = 210,

    /// <summary>$VIEWCTR.</summary>
    Viewctr = 211,

    /// <summary>$VIEWDIR.</summary>
    Viewdir = 212,

    /// <summary>$VIEWSIZE.</summary>
    Viewsize = 213,

    /// <summary>$VISRETAIN.</summary>
    Visretain = 214,

    /// <summary>$WORLDVIEW.</summary>
    Worldview = 215,

    /// <summary>$XCLIPFRAME.</summary>
    Xclipframe = 216,

    /// <summary>$XEDIT.</summary>
    Xedit = 217,
}
