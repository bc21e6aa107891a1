using System.IO;
using System.Text;
using Korvan.CAD.FileFormats.Ifc;

namespace Korvan.CAD.Tests.FileFormats.Ifc;

/// <summary>Small models from the records that a test writes.</summary>
internal static class IfcText
{
    internal static string File(string records, string schema = "IFC4") =>
        "ISO-10303-21;\nHEADER;\nFILE_DESCRIPTION((''),'2;1');\nFILE_NAME('','',(''),(''),'','','');\n"
        + $"FILE_SCHEMA(('{schema}'));\nENDSEC;\nDATA;\n{records}ENDSEC;\nEND-ISO-10303-21;\n";

    internal static IfcImage Load(string records, LoadOptions? options = null, string schema = "IFC4") =>
        LoadFile(File(records, schema), options);

    internal static IfcImage LoadFile(string text, LoadOptions? options = null) =>
        (IfcImage)Image.Load(
            new MemoryStream(Encoding.Latin1.GetBytes(text)), "test.ifc", options ?? new LoadOptions());

    internal static string Saved(IfcImage image)
    {
        using MemoryStream stream = new();
        image.Save(stream);
        return Encoding.Latin1.GetString(stream.ToArray());
    }
}
