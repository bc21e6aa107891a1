using System.Collections.Generic;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>The objects within an object.</summary>
public sealed class CadEmbeddedObjectContainer
{
    private const int Start = 101;

    internal CadEmbeddedObjectContainer(IEnumerable<CadCodeValue> tags)
    {
        List<CadEmbeddedObject> objects = [];
        foreach (CadCodeValue tag in tags)
        {
            if (tag.Attribute == Start)
            {
                objects.Add(new CadEmbeddedObject(tag.Value));
            }
            else if (objects.Count > 0)
            {
                objects[^1].Codes.Add(tag);
            }
        }

        EmbeddedObjects = [.. objects];
    }

    /// <summary>Gets the objects, in the order of the file.</summary>
    public CadEmbeddedObject[] EmbeddedObjects { get; }
}
