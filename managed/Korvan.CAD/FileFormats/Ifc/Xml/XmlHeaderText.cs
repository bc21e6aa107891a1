using System.Linq;
using System.Xml.Linq;
using Korvan.CAD.FileFormats.Ifc.Header;

namespace Korvan.CAD.FileFormats.Ifc.Xml;

/// <summary>The header of an ifcXML file as a header of ISO 10303-21.</summary>
internal sealed class XmlHeaderText
{
    private XElement? _header;

    internal void Take(XElement header) => _header = header;

    internal string Text()
    {
        string description = HeaderText.Record("FILE_DESCRIPTION", Texts("documentation"), "2;1");
        string fileName = HeaderText.Record(
            "FILE_NAME", One("name"), One("time_stamp"), Texts("author"), Texts("organization"),
            One("preprocessor_version"), One("originating_system"), One("authorization"));
        string[] lines =
        [
            "ISO-10303-21;", "HEADER;", description, fileName, "FILE_SCHEMA(('IFC2X3'));", "ENDSEC;", "DATA;",
            string.Empty,
        ];
        return string.Join('\n', lines);
    }

    private string[] Texts(string name) =>
        [.. (_header?.Elements() ?? []).Where(one => one.Name.LocalName == name).Select(one => one.Value)];

    private string One(string name) => Texts(name).FirstOrDefault() ?? string.Empty;
}
