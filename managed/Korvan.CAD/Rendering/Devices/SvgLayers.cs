using System.Collections.Generic;
using System.Text;
using System.Xml;

namespace Korvan.CAD.Rendering.Devices;

/// <summary>Names of layers as identifiers of XML: of valid characters, each of one layer, the same at each
/// run.</summary>
internal sealed class SvgLayers
{
    private const string Prefix = "layer-";

    private readonly List<Layer> _layers = [];
    private readonly HashSet<string> _taken = [];

    /// <summary>Returns the name of a layer as an identifier, and the number of this run of its items.</summary>
    internal (string Name, int Run) Next(int layer, IReadOnlyList<string> names)
    {
        while (_layers.Count <= layer)
        {
            _layers.Add(new Layer(NewName(names[_layers.Count])));
        }

        return (_layers[layer].Name, ++_layers[layer].Runs);
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

    private sealed class Layer(string name)
    {
        internal string Name { get; } = name;

        internal int Runs { get; set; }
    }
}
