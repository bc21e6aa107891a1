using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>The file formats that the library tells apart.</summary>
[PythonEnum(EnumKind.Flag)]
public enum FileFormat
{
    /// <summary>No format is stated or the content was not recognised.</summary>
    Undefined = 0,

    /// <summary>A format registered by the program.</summary>
    Custom = 1,

    /// <summary>BMP image.</summary>
    Bmp = 2,

    /// <summary>GIF image.</summary>
    Gif = 4,

    /// <summary>JPEG image.</summary>
    Jpeg = 8,

    /// <summary>PNG image.</summary>
    Png = 16,

    /// <summary>TIFF image.</summary>
    Tiff = 32,

    /// <summary>PSD image.</summary>
    Psd = 64,

    /// <summary>JPEG2000 image.</summary>
    Jpeg2000 = 512,

    /// <summary>WEBP image.</summary>
    Webp = 2048,

    /// <summary>EMF image.</summary>
    Emf = 4096,

    /// <summary>DICOM image.</summary>
    Dicom = 8192,

    /// <summary>SVG image.</summary>
    Svg = 16384,

    /// <summary>WMF image.</summary>
    Wmf = 32768,

    /// <summary>Digital negative.</summary>
    Dng = 65536,

    /// <summary>HTML 5 canvas script.</summary>
    Html5Canvas = 4194304,

    /// <summary>Truevision image.</summary>
    Tga = 8388608,

    /// <summary>Portable document.</summary>
    Pdf = 16777216,

    /// <summary>Drawing database, release R1_1.</summary>
    CadR1_1 = 65537,

    /// <summary>Drawing database, release R1_2.</summary>
    CadR1_2 = 65538,

    /// <summary>Drawing database, release R1_4.</summary>
    CadR1_4 = 65539,

    /// <summary>Drawing database, release R2_0.</summary>
    CadR2_0 = 65540,

    /// <summary>Drawing database, release R2_10.</summary>
    CadR2_10 = 65541,

    /// <summary>Drawing database, release R2_21.</summary>
    CadR2_21 = 65542,

    /// <summary>Drawing database, release R2_22.</summary>
    CadR2_22 = 65543,

    /// <summary>Drawing database, release R2_5.</summary>
    CadR2_5 = 65544,

    /// <summary>Drawing database, release R2_6.</summary>
    CadR2_6 = 65545,

    /// <summary>Drawing database, release R9.</summary>
    CadR9 = 65546,

    /// <summary>Drawing database, release R010.</summary>
    CadR010 = 65547,

    /// <summary>Drawing database, release R011_012.</summary>
    CadR011_012 = 65548,

    /// <summary>Drawing database, release R013.</summary>
    CadR013 = 65549,

    /// <summary>Drawing database, release R013C_3.</summary>
    CadR013C_3 = 65550,

    /// <summary>Drawing database, release R014.</summary>
    CadR014 = 65551,

    /// <summary>Drawing database, release R2000.</summary>
    CadR2000 = 65552,

    /// <summary>Drawing database, release R2004.</summary>
    CadR2004 = 65553,

    /// <summary>Drawing database, release R2007.</summary>
    CadR2007 = 65554,

    /// <summary>Drawing database, release R2010.</summary>
    CadR2010 = 65555,

    /// <summary>Drawing database, release R2013.</summary>
    CadR2013 = 65556,

    /// <summary>Drawing database, release R2018.</summary>
    CadR2018 = 65557,

    /// <summary>Design file, V7.</summary>
    DgnV7 = 65558,

    /// <summary>Design file, V8.</summary>
    DgnV8 = 65559,

    /// <summary>Design file, V9.</summary>
    DgnV9 = 65560,

    /// <summary>Drawing interchange file, release R010.</summary>
    DxfCadR010 = 65561,

    /// <summary>Drawing interchange file, release R012.</summary>
    DxfCadR012 = 65562,

    /// <summary>Drawing interchange file, release R014.</summary>
    DxfCadR014 = 65563,

    /// <summary>Drawing interchange file, release R015.</summary>
    DxfCadR015 = 65564,

    /// <summary>Drawing interchange file, release R021.</summary>
    DxfCadR021 = 65565,

    /// <summary>Drawing interchange file, release R0221.</summary>
    DxfCadR0221 = 65566,

    /// <summary>Drawing interchange file, release R0222.</summary>
    DxfCadR0222 = 65567,

    /// <summary>Drawing interchange file, release R025.</summary>
    DxfCadR025 = 65568,

    /// <summary>Drawing interchange file, release R026.</summary>
    DxfCadR026 = 65569,

    /// <summary>Drawing interchange file, release R9.</summary>
    DxfCadR9 = 65570,

    /// <summary>Drawing interchange file, release R10.</summary>
    DxfCadR10 = 65571,

    /// <summary>Drawing interchange file, release R11.</summary>
    DxfCadR11 = 65572,

    /// <summary>Drawing interchange file, release R13.</summary>
    DxfCadR13 = 65573,

    /// <summary>Drawing interchange file, release R14.</summary>
    DxfCadR14 = 65574,

    /// <summary>Drawing interchange file, release R2000.</summary>
    DxfCadR2000 = 65575,

    /// <summary>Drawing interchange file, release R2004.</summary>
    DxfCadR2004 = 65576,

    /// <summary>Drawing interchange file, release R2007.</summary>
    DxfCadR2007 = 65577,

    /// <summary>Drawing interchange file, release R2010.</summary>
    DxfCadR2010 = 65578,

    /// <summary>Drawing interchange file, release R2013.</summary>
    DxfCadR2013 = 65579,

    /// <summary>Industry foundation classes, edition 2x3.</summary>
    IFC2X3 = 65580,

    /// <summary>Stereolithography mesh.</summary>
    Stl = 65581,

    /// <summary>Design web format.</summary>
    Dwf = 65582,

    /// <summary>Initial graphics exchange specification.</summary>
    Iges = 65583,

    /// <summary>Plotter commands.</summary>
    Plt = 65584,

    /// <summary>Drawing template, release R1_1.</summary>
    DwtCadR1_1 = 65585,

    /// <summary>Drawing template, release R1_2.</summary>
    DwtCadR1_2 = 65586,

    /// <summary>Drawing template, release R1_4.</summary>
    DwtCadR1_4 = 65587,

    /// <summary>Drawing template, release R2_0.</summary>
    DwtCadR2_0 = 65588,

    /// <summary>Drawing template, release R2_10.</summary>
    DwtCadR2_10 = 65589,

    /// <summary>Drawing template, release R2_21.</summary>
    DwtCadR2_21 = 65590,

    /// <summary>Drawing template, release R2_22.</summary>
    DwtCadR2_22 = 65591,

    /// <summary>Drawing template, release R2_5.</summary>
    DwtCadR2_5 = 65592,

    /// <summary>Drawing template, release R2_6.</summary>
    DwtCadR2_6 = 65593,

    /// <summary>Drawing template, release R9.</summary>
    DwtCadR9 = 65594,

    /// <summary>Drawing template, release R010.</summary>
    DwtCadR010 = 65595,

    /// <summary>Drawing template, release R011_012.</summary>
    DwtCadR011_012 = 65596,

    /// <summary>Drawing template, release R013.</summary>
    DwtCadR013 = 65597,

    /// <summary>Drawing template, release R014.</summary>
    DwtCadR014 = 65598,

    /// <summary>Drawing template, release R2000.</summary>
    DwtCadR2000 = 65599,

    /// <summary>Drawing template, release R2004.</summary>
    DwtCadR2004 = 65600,

    /// <summary>Drawing template, release R2007.</summary>
    DwtCadR2007 = 65601,

    /// <summary>Drawing template, release R2010.</summary>
    DwtCadR2010 = 65602,

    /// <summary>Drawing template, release R2013.</summary>
    DwtCadR2013 = 65603,

    /// <summary>Drawing template, release R2018.</summary>
    DwtCadR2018 = 65604,

    /// <summary>Common file format for dies and cartons.</summary>
    CF2 = 65605,

    /// <summary>Wavefront mesh.</summary>
    Obj = 65606,

    /// <summary>Industry foundation classes, edition 4.</summary>
    IFC4 = 65607,

    /// <summary>Filmbox scene.</summary>
    Fbx = 65608,

    /// <summary>A folder of several derived files.</summary>
    ApsGroup = 65609,

    /// <summary>Design web format in an XPS package.</summary>
    Dwfx = 65610,

    /// <summary>Collada scene.</summary>
    Collada = 65611,

    /// <summary>Binary drawing exchange.</summary>
    Dxb = 65612,

    /// <summary>STEP product model.</summary>
    Stp = 65613,

    /// <summary>Computer graphics metafile.</summary>
    Cgm = 65614,

    /// <summary>glTF scene in one binary file.</summary>
    Glb = 65615,

    /// <summary>glTF scene.</summary>
    Gltf = 65616,

    /// <summary>Universal 3D scene.</summary>
    U3D = 65617,

    /// <summary>3D Studio mesh.</summary>
    ThreeDS = 65618,

    /// <summary>Draco compressed mesh.</summary>
    Draco = 65619,
}
