using System;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>States the name of a class of objects in files, and the marker before its codes.</summary>
[AttributeUsage(AttributeTargets.Class, Inherited = false)]
public sealed class CadObjectAttribute : Attribute
{
    /// <summary>Creates the statement.</summary>
    /// <param name="typeName">The name that follows group code 0, or an empty text for a part of an object.</param>
    public CadObjectAttribute(string typeName)
    {
        TypeName = typeName;
    }

    /// <summary>Gets the name that follows group code 0.</summary>
    public string TypeName { get; }

    /// <summary>Gets or sets the marker, group code 100, that precedes the codes of the class.</summary>
    public string? Subclass { get; set; }

    /// <summary>Gets or sets whether the class writes its codes itself, because their order is not that of the
    /// properties.</summary>
    public bool HandWritten { get; set; }
}
