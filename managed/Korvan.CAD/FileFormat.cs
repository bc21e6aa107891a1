using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats;

namespace Korvan.CAD;

/// <summary>The file formats that the library detects.</summary>
[PythonEnum(EnumKind.Flag)]
public enum FileFormat : ulong
{
    /// <summary>No format is given, or the content was not recognised.</summary>
    Undefined = 0,

    /// <summary>A format that the program registers.</summary>
    Custom = 1,

    /// <summary>BMP image.</summary>
    [FileFormatMetadata("Windows bitmap", FileFormatFamily.Raster, FileFormatCategory.Bitmap, ".bmp", ".dib")]
    Bmp = 2,

    /// <summary>GIF image.</summary>
    [FileFormatMetadata("Graphics interchange format", FileFormatFamily.Raster, FileFormatCategory.Bitmap, ".gif")]
    Gif = 4,

    /// <summary>JPEG image.</summary>
    [FileFormatMetadata("JPEG", FileFormatFamily.Raster, FileFormatCategory.Bitmap, ".jpg", ".jpeg", ".jpe")]
    Jpeg = 8,

    /// <summary>PNG image.</summary>
    [FileFormatMetadata("Portable network graphics", FileFormatFamily.Raster, FileFormatCategory.Bitmap, ".png")]
    Png = 16,

    /// <summary>TIFF image.</summary>
    [FileFormatMetadata(
        "Tagged image file format", FileFormatFamily.Raster, FileFormatCategory.Bitmap, ".tif", ".tiff")]
    Tiff = 32,

    /// <summary>PSD image.</summary>
    [FileFormatMetadata("Layered image", FileFormatFamily.Raster, FileFormatCategory.Bitmap, ".psd")]
    Psd = 64,

    /// <summary>JPEG2000 image.</summary>
    [FileFormatMetadata("JPEG 2000", FileFormatFamily.Raster, FileFormatCategory.Bitmap, ".jp2", ".j2k", ".jpf")]
    Jpeg2000 = 512,

    /// <summary>WEBP image.</summary>
    [FileFormatMetadata("WebP", FileFormatFamily.Raster, FileFormatCategory.Bitmap, ".webp")]
    Webp = 2048,

    /// <summary>EMF image.</summary>
    [FileFormatMetadata("Enhanced metafile", FileFormatFamily.Page, FileFormatCategory.Vector, ".emf")]
    Emf = 4096,

    /// <summary>DICOM image.</summary>
    [FileFormatMetadata("DICOM image", FileFormatFamily.Raster, FileFormatCategory.Bitmap, ".dcm")]
    Dicom = 8192,

    /// <summary>SVG image.</summary>
    [FileFormatMetadata("Scalable vector graphics", FileFormatFamily.Page, FileFormatCategory.Vector, ".svg")]
    Svg = 16384,

    /// <summary>WMF image.</summary>
    [FileFormatMetadata("Windows metafile", FileFormatFamily.Page, FileFormatCategory.Vector, ".wmf")]
    Wmf = 32768,

    /// <summary>Digital negative.</summary>
    [FileFormatMetadata("Digital negative", FileFormatFamily.Raster, FileFormatCategory.Bitmap, ".dng")]
    Dng = 65536,

    /// <summary>HTML 5 canvas script.</summary>
    [FileFormatMetadata("HTML page with a canvas", FileFormatFamily.Page, FileFormatCategory.Vector, ".html", ".htm")]
    Html5Canvas = 4194304,

    /// <summary>Truevision image.</summary>
    [FileFormatMetadata("Truevision image", FileFormatFamily.Raster, FileFormatCategory.Bitmap, ".tga")]
    Tga = 8388608,

    /// <summary>Portable document.</summary>
    [FileFormatMetadata("Portable document", FileFormatFamily.Page, FileFormatCategory.Vector, ".pdf")]
    Pdf = 16777216,

    /// <summary>Drawing database, release R1_1.</summary>
    [FileFormatMetadata("Drawing", FileFormatFamily.Dwg, FileFormatCategory.Cad, ".dwg")]
    CadR1_1 = 65537,

    /// <summary>Drawing database, release R1_2.</summary>
    [FileFormatMetadata("Drawing", FileFormatFamily.Dwg, FileFormatCategory.Cad, ".dwg")]
    CadR1_2 = 65538,

    /// <summary>Drawing database, release R1_4.</summary>
    [FileFormatMetadata("Drawing", FileFormatFamily.Dwg, FileFormatCategory.Cad, ".dwg")]
    CadR1_4 = 65539,

    /// <summary>Drawing database, release R2_0.</summary>
    [FileFormatMetadata("Drawing", FileFormatFamily.Dwg, FileFormatCategory.Cad, ".dwg")]
    CadR2_0 = 65540,

    /// <summary>Drawing database, release R2_10.</summary>
    [FileFormatMetadata("Drawing", FileFormatFamily.Dwg, FileFormatCategory.Cad, ".dwg")]
    CadR2_10 = 65541,

    /// <summary>Drawing database, release R2_21.</summary>
    [FileFormatMetadata("Drawing", FileFormatFamily.Dwg, FileFormatCategory.Cad, ".dwg")]
    CadR2_21 = 65542,

    /// <summary>Drawing database, release R2_22.</summary>
    [FileFormatMetadata("Drawing", FileFormatFamily.Dwg, FileFormatCategory.Cad, ".dwg")]
    CadR2_22 = 65543,

    /// <summary>Drawing database, release R2_5.</summary>
    [FileFormatMetadata("Drawing", FileFormatFamily.Dwg, FileFormatCategory.Cad, ".dwg")]
    CadR2_5 = 65544,

    /// <summary>Drawing database, release R2_6.</summary>
    [FileFormatMetadata("Drawing", FileFormatFamily.Dwg, FileFormatCategory.Cad, ".dwg")]
    CadR2_6 = 65545,

    /// <summary>Drawing database, release R9.</summary>
    [FileFormatMetadata("Drawing", FileFormatFamily.Dwg, FileFormatCategory.Cad, ".dwg")]
    CadR9 = 65546,

    /// <summary>Drawing database, release R010.</summary>
    [FileFormatMetadata("Drawing", FileFormatFamily.Dwg, FileFormatCategory.Cad, ".dwg")]
    CadR010 = 65547,

    /// <summary>Drawing database, release R011_012.</summary>
    [FileFormatMetadata("Drawing", FileFormatFamily.Dwg, FileFormatCategory.Cad, ".dwg")]
    CadR011_012 = 65548,

    /// <summary>Drawing database, release R013.</summary>
    [FileFormatMetadata("Drawing", FileFormatFamily.Dwg, FileFormatCategory.Cad, ".dwg")]
    CadR013 = 65549,

    /// <summary>Drawing database, release R013C_3.</summary>
    [FileFormatMetadata("Drawing", FileFormatFamily.Dwg, FileFormatCategory.Cad, ".dwg")]
    CadR013C_3 = 65550,

    /// <summary>Drawing database, release R014.</summary>
    [FileFormatMetadata("Drawing", FileFormatFamily.Dwg, FileFormatCategory.Cad, ".dwg")]
    CadR014 = 65551,

    /// <summary>Drawing database, release R2000.</summary>
    [FileFormatMetadata("Drawing", FileFormatFamily.Dwg, FileFormatCategory.Cad, ".dwg")]
    CadR2000 = 65552,

    /// <summary>Drawing database, release R2004.</summary>
    [FileFormatMetadata("Drawing", FileFormatFamily.Dwg, FileFormatCategory.Cad, ".dwg")]
    CadR2004 = 65553,

    /// <summary>Drawing database, release R2007.</summary>
    [FileFormatMetadata("Drawing", FileFormatFamily.Dwg, FileFormatCategory.Cad, ".dwg")]
    CadR2007 = 65554,

    /// <summary>Drawing database, release R2010.</summary>
    [FileFormatMetadata("Drawing", FileFormatFamily.Dwg, FileFormatCategory.Cad, ".dwg")]
    CadR2010 = 65555,

    /// <summary>Drawing database, release R2013.</summary>
    [FileFormatMetadata("Drawing", FileFormatFamily.Dwg, FileFormatCategory.Cad, ".dwg")]
    CadR2013 = 65556,

    /// <summary>Drawing database, release R2018.</summary>
    [FileFormatMetadata("Drawing", FileFormatFamily.Dwg, FileFormatCategory.Cad, ".dwg")]
    CadR2018 = 65557,

    /// <summary>Design file, V7.</summary>
    [FileFormatMetadata("Design file", FileFormatFamily.Dgn, FileFormatCategory.Cad, ".dgn")]
    DgnV7 = 65558,

    /// <summary>Design file, V8.</summary>
    [FileFormatMetadata("Design file", FileFormatFamily.Dgn, FileFormatCategory.Cad, ".dgn")]
    DgnV8 = 65559,

    /// <summary>Design file, V9.</summary>
    [FileFormatMetadata("Design file", FileFormatFamily.Dgn, FileFormatCategory.Cad, ".dgn")]
    DgnV9 = 65560,

    /// <summary>Drawing interchange file, release R010.</summary>
    [FileFormatMetadata("Drawing interchange file", FileFormatFamily.Dxf, FileFormatCategory.Cad, ".dxf")]
    DxfCadR010 = 65561,

    /// <summary>Drawing interchange file, release R012.</summary>
    [FileFormatMetadata("Drawing interchange file", FileFormatFamily.Dxf, FileFormatCategory.Cad, ".dxf")]
    DxfCadR012 = 65562,

    /// <summary>Drawing interchange file, release R014.</summary>
    [FileFormatMetadata("Drawing interchange file", FileFormatFamily.Dxf, FileFormatCategory.Cad, ".dxf")]
    DxfCadR014 = 65563,

    /// <summary>Drawing interchange file, release R015.</summary>
    [FileFormatMetadata("Drawing interchange file", FileFormatFamily.Dxf, FileFormatCategory.Cad, ".dxf")]
    DxfCadR015 = 65564,

    /// <summary>Drawing interchange file, release R021.</summary>
    [FileFormatMetadata("Drawing interchange file", FileFormatFamily.Dxf, FileFormatCategory.Cad, ".dxf")]
    DxfCadR021 = 65565,

    /// <summary>Drawing interchange file, release R0221.</summary>
    [FileFormatMetadata("Drawing interchange file", FileFormatFamily.Dxf, FileFormatCategory.Cad, ".dxf")]
    DxfCadR0221 = 65566,

    /// <summary>Drawing interchange file, release R0222.</summary>
    [FileFormatMetadata("Drawing interchange file", FileFormatFamily.Dxf, FileFormatCategory.Cad, ".dxf")]
    DxfCadR0222 = 65567,

    /// <summary>Drawing interchange file, release R025.</summary>
    [FileFormatMetadata("Drawing interchange file", FileFormatFamily.Dxf, FileFormatCategory.Cad, ".dxf")]
    DxfCadR025 = 65568,

    /// <summary>Drawing interchange file, release R026.</summary>
    [FileFormatMetadata("Drawing interchange file", FileFormatFamily.Dxf, FileFormatCategory.Cad, ".dxf")]
    DxfCadR026 = 65569,

    /// <summary>Drawing interchange file, release R9.</summary>
    [FileFormatMetadata("Drawing interchange file", FileFormatFamily.Dxf, FileFormatCategory.Cad, ".dxf")]
    DxfCadR9 = 65570,

    /// <summary>Drawing interchange file, release R10.</summary>
    [FileFormatMetadata("Drawing interchange file", FileFormatFamily.Dxf, FileFormatCategory.Cad, ".dxf")]
    DxfCadR10 = 65571,

    /// <summary>Drawing interchange file, release R11.</summary>
    [FileFormatMetadata("Drawing interchange file", FileFormatFamily.Dxf, FileFormatCategory.Cad, ".dxf")]
    DxfCadR11 = 65572,

    /// <summary>Drawing interchange file, release R13.</summary>
    [FileFormatMetadata("Drawing interchange file", FileFormatFamily.Dxf, FileFormatCategory.Cad, ".dxf")]
    DxfCadR13 = 65573,

    /// <summary>Drawing interchange file, release R14.</summary>
    [FileFormatMetadata("Drawing interchange file", FileFormatFamily.Dxf, FileFormatCategory.Cad, ".dxf")]
    DxfCadR14 = 65574,

    /// <summary>Drawing interchange file, release R2000.</summary>
    [FileFormatMetadata("Drawing interchange file", FileFormatFamily.Dxf, FileFormatCategory.Cad, ".dxf")]
    DxfCadR2000 = 65575,

    /// <summary>Drawing interchange file, release R2004.</summary>
    [FileFormatMetadata("Drawing interchange file", FileFormatFamily.Dxf, FileFormatCategory.Cad, ".dxf")]
    DxfCadR2004 = 65576,

    /// <summary>Drawing interchange file, release R2007.</summary>
    [FileFormatMetadata("Drawing interchange file", FileFormatFamily.Dxf, FileFormatCategory.Cad, ".dxf")]
    DxfCadR2007 = 65577,

    /// <summary>Drawing interchange file, release R2010.</summary>
    [FileFormatMetadata("Drawing interchange file", FileFormatFamily.Dxf, FileFormatCategory.Cad, ".dxf")]
    DxfCadR2010 = 65578,

    /// <summary>Drawing interchange file, release R2013.</summary>
    [FileFormatMetadata("Drawing interchange file", FileFormatFamily.Dxf, FileFormatCategory.Cad, ".dxf")]
    DxfCadR2013 = 65579,

    /// <summary>Industry foundation classes, IFC2X3.</summary>
    [FileFormatMetadata(
        "Industry foundation classes 2x3", FileFormatFamily.Ifc, FileFormatCategory.Bim, ".ifc", ".ifczip")]
    IFC2X3 = 65580,

    /// <summary>Stereolithography mesh.</summary>
    [FileFormatMetadata("Stereolithography", FileFormatFamily.Mesh, FileFormatCategory.Cad, ".stl")]
    Stl = 65581,

    /// <summary>Design web format.</summary>
    [FileFormatMetadata("Design web format", FileFormatFamily.Dwf, FileFormatCategory.Cad, ".dwf")]
    Dwf = 65582,

    /// <summary>Initial graphics exchange specification.</summary>
    [FileFormatMetadata(
        "Initial graphics exchange specification", FileFormatFamily.Solid, FileFormatCategory.Cad, ".igs", ".iges")]
    Iges = 65583,

    /// <summary>Plotter commands.</summary>
    [FileFormatMetadata("Plotter commands", FileFormatFamily.Plot, FileFormatCategory.Vector, ".plt", ".hpgl")]
    Plt = 65584,

    /// <summary>Drawing template, release R1_1.</summary>
    [FileFormatMetadata("Drawing template", FileFormatFamily.Dwg, FileFormatCategory.Cad, ".dwt")]
    DwtCadR1_1 = 65585,

    /// <summary>Drawing template, release R1_2.</summary>
    [FileFormatMetadata("Drawing template", FileFormatFamily.Dwg, FileFormatCategory.Cad, ".dwt")]
    DwtCadR1_2 = 65586,

    /// <summary>Drawing template, release R1_4.</summary>
    [FileFormatMetadata("Drawing template", FileFormatFamily.Dwg, FileFormatCategory.Cad, ".dwt")]
    DwtCadR1_4 = 65587,

    /// <summary>Drawing template, release R2_0.</summary>
    [FileFormatMetadata("Drawing template", FileFormatFamily.Dwg, FileFormatCategory.Cad, ".dwt")]
    DwtCadR2_0 = 65588,

    /// <summary>Drawing template, release R2_10.</summary>
    [FileFormatMetadata("Drawing template", FileFormatFamily.Dwg, FileFormatCategory.Cad, ".dwt")]
    DwtCadR2_10 = 65589,

    /// <summary>Drawing template, release R2_21.</summary>
    [FileFormatMetadata("Drawing template", FileFormatFamily.Dwg, FileFormatCategory.Cad, ".dwt")]
    DwtCadR2_21 = 65590,

    /// <summary>Drawing template, release R2_22.</summary>
    [FileFormatMetadata("Drawing template", FileFormatFamily.Dwg, FileFormatCategory.Cad, ".dwt")]
    DwtCadR2_22 = 65591,

    /// <summary>Drawing template, release R2_5.</summary>
    [FileFormatMetadata("Drawing template", FileFormatFamily.Dwg, FileFormatCategory.Cad, ".dwt")]
    DwtCadR2_5 = 65592,

    /// <summary>Drawing template, release R2_6.</summary>
    [FileFormatMetadata("Drawing template", FileFormatFamily.Dwg, FileFormatCategory.Cad, ".dwt")]
    DwtCadR2_6 = 65593,

    /// <summary>Drawing template, release R9.</summary>
    [FileFormatMetadata("Drawing template", FileFormatFamily.Dwg, FileFormatCategory.Cad, ".dwt")]
    DwtCadR9 = 65594,

    /// <summary>Drawing template, release R010.</summary>
    [FileFormatMetadata("Drawing template", FileFormatFamily.Dwg, FileFormatCategory.Cad, ".dwt")]
    DwtCadR010 = 65595,

    /// <summary>Drawing template, release R011_012.</summary>
    [FileFormatMetadata("Drawing template", FileFormatFamily.Dwg, FileFormatCategory.Cad, ".dwt")]
    DwtCadR011_012 = 65596,

    /// <summary>Drawing template, release R013.</summary>
    [FileFormatMetadata("Drawing template", FileFormatFamily.Dwg, FileFormatCategory.Cad, ".dwt")]
    DwtCadR013 = 65597,

    /// <summary>Drawing template, release R014.</summary>
    [FileFormatMetadata("Drawing template", FileFormatFamily.Dwg, FileFormatCategory.Cad, ".dwt")]
    DwtCadR014 = 65598,

    /// <summary>Drawing template, release R2000.</summary>
    [FileFormatMetadata("Drawing template", FileFormatFamily.Dwg, FileFormatCategory.Cad, ".dwt")]
    DwtCadR2000 = 65599,

    /// <summary>Drawing template, release R2004.</summary>
    [FileFormatMetadata("Drawing template", FileFormatFamily.Dwg, FileFormatCategory.Cad, ".dwt")]
    DwtCadR2004 = 65600,

    /// <summary>Drawing template, release R2007.</summary>
    [FileFormatMetadata("Drawing template", FileFormatFamily.Dwg, FileFormatCategory.Cad, ".dwt")]
    DwtCadR2007 = 65601,

    /// <summary>Drawing template, release R2010.</summary>
    [FileFormatMetadata("Drawing template", FileFormatFamily.Dwg, FileFormatCategory.Cad, ".dwt")]
    DwtCadR2010 = 65602,

    /// <summary>Drawing template, release R2013.</summary>
    [FileFormatMetadata("Drawing template", FileFormatFamily.Dwg, FileFormatCategory.Cad, ".dwt")]
    DwtCadR2013 = 65603,

    /// <summary>Drawing template, release R2018.</summary>
    [FileFormatMetadata("Drawing template", FileFormatFamily.Dwg, FileFormatCategory.Cad, ".dwt")]
    DwtCadR2018 = 65604,

    /// <summary>Common file format for dies and cartons.</summary>
    [FileFormatMetadata("Common file format 2", FileFormatFamily.Plot, FileFormatCategory.Vector, ".cf2")]
    CF2 = 65605,

    /// <summary>Wavefront mesh.</summary>
    [FileFormatMetadata("Wavefront object", FileFormatFamily.Mesh, FileFormatCategory.Cad, ".obj")]
    Obj = 65606,

    /// <summary>Industry foundation classes, IFC4.</summary>
    [FileFormatMetadata(
        "Industry foundation classes 4", FileFormatFamily.Ifc, FileFormatCategory.Bim, ".ifc", ".ifczip")]
    IFC4 = 65607,

    /// <summary>Filmbox scene.</summary>
    [FileFormatMetadata("Filmbox scene", FileFormatFamily.Mesh, FileFormatCategory.Cad, ".fbx")]
    Fbx = 65608,

    /// <summary>A folder of several derived files.</summary>
    [FileFormatMetadata("Optimised cutting data", FileFormatFamily.Plot, FileFormatCategory.Vector, ".aps")]
    ApsGroup = 65609,

    /// <summary>Design web format in an XPS package.</summary>
    [FileFormatMetadata("Design web format, XPS", FileFormatFamily.Dwf, FileFormatCategory.Cad, ".dwfx")]
    Dwfx = 65610,

    /// <summary>Collada scene.</summary>
    [FileFormatMetadata("Collaborative design activity", FileFormatFamily.Mesh, FileFormatCategory.Cad, ".dae")]
    Collada = 65611,

    /// <summary>Binary drawing exchange.</summary>
    [FileFormatMetadata("Drawing interchange binary", FileFormatFamily.Dxf, FileFormatCategory.Cad, ".dxb")]
    Dxb = 65612,

    /// <summary>STEP product model.</summary>
    [FileFormatMetadata("STEP product data", FileFormatFamily.Solid, FileFormatCategory.Cad, ".stp", ".step")]
    Stp = 65613,

    /// <summary>Computer graphics metafile.</summary>
    [FileFormatMetadata("Computer graphics metafile", FileFormatFamily.Page, FileFormatCategory.Vector, ".cgm")]
    Cgm = 65614,

    /// <summary>glTF scene in one binary file.</summary>
    [FileFormatMetadata("GL transmission format, binary", FileFormatFamily.Mesh, FileFormatCategory.Cad, ".glb")]
    Glb = 65615,

    /// <summary>glTF scene.</summary>
    [FileFormatMetadata("GL transmission format", FileFormatFamily.Mesh, FileFormatCategory.Cad, ".gltf")]
    Gltf = 65616,

    /// <summary>Universal 3D scene.</summary>
    [FileFormatMetadata("Universal 3D", FileFormatFamily.Mesh, FileFormatCategory.Cad, ".u3d")]
    U3D = 65617,

    /// <summary>3D Studio mesh.</summary>
    [FileFormatMetadata("3D Studio mesh", FileFormatFamily.Mesh, FileFormatCategory.Cad, ".3ds")]
    ThreeDS = 65618,

    /// <summary>Draco compressed mesh.</summary>
    [FileFormatMetadata("Draco compressed mesh", FileFormatFamily.Mesh, FileFormatCategory.Cad, ".drc")]
    Draco = 65619,
}
