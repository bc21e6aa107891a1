using Korvan.WrpGen.Naming;
using Xunit;

namespace Korvan.WrpGen.Tests.Naming;

public class PythonNameTests
{
    [Theory]
    // An identifier without a lower-case letter keeps its words.
    [InlineData("MLEADER_ENTITY_NAME", "mleader_entity_name")]
    [InlineData("STANDARD_STYLE", "standard_style")]
    [InlineData("P1", "p1")]
    [InlineData("X", "x")]
    // Digits between letters stand by themselves, digits at the end stay where they are.
    [InlineData("GetArgb32Color", "get_argb_32_color")]
    [InlineData("Create4Bit", "create_4_bit")]
    [InlineData("Rgb24Bpp", "rgb_24_bpp")]
    [InlineData("ToArgb32", "to_argb32")]
    [InlineData("ReadFloatingPoint32", "read_floating_point32")]
    [InlineData("Attribute70", "attribute70")]
    [InlineData("SetBackgroundColorRgb427", "set_background_color_rgb427")]
    // Words and acronyms.
    [InlineData("MidnightBlue", "midnight_blue")]
    [InlineData("ColorIntensitySegregationThreshold", "color_intensity_segregation_threshold")]
    [InlineData("InitializePBRMetallicRoughness", "initialize_pbr_metallic_roughness")]
    [InlineData("GPSAltitude", "gps_altitude")]
    [InlineData("UCSs", "uc_ss")]
    [InlineData("isCO2Content", "is_co2_content")]
    // Digits behind a capital stay with it; a lone capital or lower-case letters stay with digits.
    [InlineData("CO2Content", "co2_content")]
    [InlineData("FaxT4Options", "fax_t4_options")]
    [InlineData("W2dChannel", "w2d_channel")]
    [InlineData("Curve3D", "curve_3d")]
    [InlineData("Is3DContent", "is_3d_content")]
    [InlineData("To2F", "to_2f")]
    [InlineData("ToVector4F", "to_vector_4f")]
    [InlineData("Points2d", "points_2d")]
    // The four that the rule does not give.
    [InlineData("AsMatrix2x2Array", "as_matrix_2x2_array")]
    [InlineData("AsMatrix3x3Array", "as_matrix_3x3_array")]
    [InlineData("AsMatrix4x4Array", "as_matrix_4x4_array")]
    [InlineData("Rgb16Bpp555", "rgb_16_bpp_555")]
    public void Lower(string managed, string python) => Assert.Equal(python, PythonName.Lower(managed));

    [Theory]
    [InlineData("TypeIdentity", "TYPE_IDENTITY")]
    [InlineData("SHADERPBRSPECULARGLOSSINESS", "SHADERPBRSPECULARGLOSSINESS")]
    [InlineData("REPLACE_FOLDER_FOR_SINGLE_FILE", "REPLACE_FOLDER_FOR_SINGLE_FILE")]
    [InlineData("Index0", "INDEX0")]
    [InlineData("HeaderSection", "HEADER_SECTION")]
    [InlineData("AcadImageDic", "ACAD_IMAGE_DIC")]
    [InlineData("Rotate90FlipNone", "ROTATE_90_FLIP_NONE")]
    [InlineData("SRgb", "S_RGB")]
    [InlineData("Rle8", "RLE8")]
    public void Upper(string managed, string python) => Assert.Equal(python, PythonName.Upper(managed));

    [Fact]
    public void ModulesLoseTheirCase() => Assert.Equal("fileformats", PythonName.Module("FileFormats"));
}
