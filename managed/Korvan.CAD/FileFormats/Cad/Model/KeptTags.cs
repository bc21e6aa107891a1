using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>Tags of a text or binary interchange file that no class interprets.</summary>
internal sealed class KeptTags : KeptData
{
    /// <summary>Gets the tags, each with the subclass marker that it follows.</summary>
    internal List<KeptTag> Tags { get; private init; } = [];

    /// <summary>Gets or sets the embedded object: group code 101 and all tags after it up to extended data.</summary>
    internal List<CadCodeValue>? Embedded { get; set; }

    /// <summary>Gets the tags without their markers, in the order of the file.</summary>
    internal CadCodeValue[] Values => [.. Tags.ConvertAll(static tag => tag.Value)];

    /// <summary>Gets what files had of the fields of subclasses, by their markers; only where it is not what the class
    /// would write.</summary>
    internal Dictionary<string, SequenceLayout> Layouts { get; private init; } = [];

    /// <summary>Gets or sets the name of the object in the file, where it is not the first name of its class.</summary>
    internal string? ObjectName { get; set; }

    internal override string FormatName => "DXF";

    /// <summary>Returns what is kept of an object; where that is nothing yet, it begins here.</summary>
    internal static KeptTags Of(CadBaseObject target) => (KeptTags)(target.Kept ??= new KeptTags());

    /// <summary>Notes that a file has another name for an object than its class.</summary>
    internal static T Named<T>(T target, string name)
        where T : CadBaseObject
    {
        Of(target).ObjectName = name;
        return target;
    }

    /// <summary>Returns the tags of a subclass of an entity without a class, whose markers are among its
    /// tags.</summary>
    internal List<CadCodeValue> Of(string subclass)
    {
        const int marker = 100;
        List<CadCodeValue> found = [];
        string current = "";
        foreach (CadCodeValue tag in Values)
        {
            if (tag.Attribute == marker)
            {
                current = tag.Value.Trim();
            }
            else if (current == subclass)
            {
                found.Add(tag);
            }
        }

        return found;
    }

    internal override KeptData Copy() => new KeptTags
    {
        Tags = Tags.ConvertAll(static tag => new KeptTag(tag.Subclass, Clone(tag.Value))),
        Embedded = Embedded?.ConvertAll(Clone),
        Layouts = Layouts,
        ObjectName = ObjectName,
    };

    private static CadCodeValue Clone(CadCodeValue value) => value is CadBinaryCodeValue
        ? new CadBinaryCodeValue(value.Attribute, value.Value) : new CadCodeValue(value.Attribute, value.Value);
}
