using System.Collections.Generic;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>An object within an object, as the text of an attribute of several lines. Group code 101 begins
/// it.</summary>
public sealed class CadEmbeddedObject
{
    internal CadEmbeddedObject(string name)
    {
        Name = name;
    }

    /// <summary>Gets the name, group code 101.</summary>
    public string Name { get; }

    /// <summary>Gets the tags, which are those of the drawing: a change of their values changes it. The list itself is
    /// a copy.</summary>
    public List<CadCodeValue> Codes { get; } = [];
}
