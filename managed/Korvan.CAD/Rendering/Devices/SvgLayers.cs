using System.Collections.Generic;
using System.Text;
using System.Xml;

namespace Korvan.CAD.Rendering.Devices;

/// <summary>Names of layers as identifiers of XML: of valid characters, each of one layer, the same at each
/// run.</summary>
internal sealed class SvgLayers
{
    private const string Prefix = "layer-";

    private readonly List<(string Name, int Runs)> _layers = [];
    private readonly HashSet<string> _taken = [];

    /// <summary>Returns the name of a layer as an identifier, and the number of this run of its items.</summary>
    internal (string Name, int Run) Next(int layer, IReadOnlyList<string> names)
    {
        while (_layers.Count <= layer)
        {
            _layers.Add((NewName(names[_layers.Count]), 0));
        }

        (string name, int runs) = _layers[layer];
        _layers[layer] = (name, runs + 1);
        return (name, runs + 1);
    }

    /// <summary>Periods are left for the numbers of runs.</summary>
    private string NewName(string layer)
    {
        var name = new StringBuilder(Prefix);
        foreach (char c in layer)
        {
            name.Append(c != '.' && XmlConvert.IsNCNameChar(c) ? c : '_');
        }

        string wanted = name.ToString();
        string free = wanted;
        for (int i = 2; !_taken.Add(free); i++)
        {
            free = $"{wanted}-{i}";
        }

        return free;
    }
}
