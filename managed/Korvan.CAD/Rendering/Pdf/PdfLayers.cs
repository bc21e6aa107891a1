using System;
using System.Collections.Generic;

namespace Korvan.CAD.Rendering.Pdf;

/// <summary>The layers of a document as optional content (ISO 32000-1, 8.11): groups of one name, all of which show at
/// first.</summary>
internal sealed class PdfLayers(PdfFile file)
{
    private readonly Dictionary<string, int> _numbers = new(StringComparer.OrdinalIgnoreCase);
    private readonly List<string> _names = [];
    private readonly List<string> _screenNames = [];
    private readonly HashSet<string> _onScreen = new(StringComparer.OrdinalIgnoreCase);

    /// <summary>Returns the number of the group of a layer, which is printed or shown on screens alone.</summary>
    internal int Of(string name, bool isPrinted)
    {
        if (!_numbers.TryGetValue(name, out int number))
        {
            number = file.New();
            _numbers.Add(name, number);
            _names.Add(name);
            if (!isPrinted)
            {
                _screenNames.Add(name);
                _onScreen.Add(name);
            }
        }

        return number;
    }

    /// <summary>Writes the groups, and adds what the catalog says of them.</summary>
    internal void Write(PdfBuffer catalog)
    {
        if (_names.Count == 0)
        {
            return;
        }

        var body = new PdfBuffer();
        foreach (string name in _names)
        {
            file.Add(_numbers[name],
                body.Cleared().Raw("<</Type/OCG/Name"u8).Text(name).Raw(_onScreen.Contains(name)
                    ? "/Intent/View/Usage<</Print<</PrintState/OFF>>/View<</ViewState/ON>>>>>>"u8
                    : "/Intent/View>>"u8));
        }

        catalog.Raw("/OCProperties<</OCGs["u8);
        AppendReferences(catalog, _names);
        catalog.Raw("]/D<</Name"u8).Text("Layers").Raw("/BaseState/ON/Order["u8);
        var sorted = new List<string>(_names);
        sorted.Sort(StringComparer.OrdinalIgnoreCase);
        AppendReferences(catalog, sorted);
        if (_screenNames.Count > 0)
        {
            foreach (string when in (string[])["Print", "View"])
            {
                catalog.Raw(when == "Print" ? "]/AS["u8 : ""u8).Raw("<</Event"u8).Name(when).Raw("/Category["u8)
                    .Name(when).Raw("]/OCGs["u8);
                AppendReferences(catalog, _screenNames);
                catalog.Raw("]>>"u8);
            }
        }

        catalog.Raw("]>>>>"u8);
    }

    private void AppendReferences(PdfBuffer target, List<string> names)
    {
        foreach (string name in names)
        {
            target.Ref(_numbers[name]).Raw((byte)' ');
        }
    }
}
