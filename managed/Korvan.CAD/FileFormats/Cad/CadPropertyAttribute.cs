using System;

namespace Korvan.CAD.FileFormats.Cad;

/// <summary>States the group code that a property is read from and written to.</summary>
[AttributeUsage(AttributeTargets.Property)]
public abstract class CadPropertyAttribute : Attribute
{
    internal CadPropertyAttribute(int code)
    {
        Code = code;
    }

    /// <summary>Gets the group code; of a point that of its X.</summary>
    public int Code { get; }

    /// <summary>Gets or sets whether the code is left out while the property has its initial value.</summary>
    public bool Optional { get; set; }

    /// <summary>Gets or sets the first release, as a year, that knows the code; 0 for all.</summary>
    public int Since { get; set; }
}
