using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>An insertion of a block of a program for interior design, which keeps further data with it.</summary>
[CadObject("ACIDBLOCKREFERENCE", Subclass = "AcIdBlockReference")]
public partial class CadAcidBlockReferenceEntity : CadInsertObject
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadAcidBlockReferenceEntity()
    {
    }

    /// <summary>Returns the tags that the program keeps with the insertion.</summary>
    /// <returns>The tags in the order of the file.</returns>
    public CadCodeValue[] GetDesignData() => [.. DesignData];

    /// <summary>Gets the tags that the program keeps with the insertion.</summary>
    internal List<CadCodeValue> DesignData { get; } = [];

    partial void OnReadField(int code, FieldReader reader, ref bool taken)
    {
        // Without markers all fields are those of the insertion.
        taken = reader.Subclass is not null;
        if (taken)
        {
            DesignData.Add(reader.ToCodeValue());
        }
    }

    partial void OnExchange(ObjectExchange fields) => fields.Tags(DesignData);
}
