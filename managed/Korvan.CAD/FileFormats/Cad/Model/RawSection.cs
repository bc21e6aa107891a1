using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Dxf;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>A section that nobody interprets, without the tags that begin and end it.</summary>
internal sealed class RawSection(string name)
{
    internal string Name { get; } = name;

    internal List<CadCodeValue> Tags { get; } = [];
}
