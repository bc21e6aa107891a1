using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>The data section of a drawing of release 2013 or later: preview images, and the geometry of
/// solids.</summary>
public sealed class CadAcdsData
{
    internal CadAcdsData()
    {
    }

    /// <summary>Gets the schemas and records, in the order of the file.</summary>
    public CadAcdsList Items { get; } = new();

    /// <summary>Gets or sets whether the drawing has the section.</summary>
    internal bool IsInFile { get; set; }

    /// <summary>Gets the tags before the first object, which state versions.</summary>
    internal List<CadCodeValue> Header { get; } = [];

    /// <summary>Returns the data of an object.</summary>
    /// <param name="handle">The handle of the object in hexadecimal.</param>
    /// <returns>The data; empty where the section has none.</returns>
    public byte[] GetData(string handle)
    {
        Verify.NotNull(handle);
        return Items.Items.OfType<CadAcdsRecord>()
            .FirstOrDefault(record => string.Equals(record.OwnerHandle, handle, StringComparison.OrdinalIgnoreCase))
            ?.Data ?? [];
    }
}
