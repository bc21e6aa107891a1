using System;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>
/// Declares a command. The constructors, the exchange of parameters and the text form are written at compile time from
/// the attributes of its properties, in their order; a method that the class declares itself is not. Without arguments
/// the attribute declares a base of commands.
/// </summary>
[AttributeUsage(AttributeTargets.Class)]
#pragma warning disable CS9113 // Arguments are read by the source generator alone.
internal sealed class CgmCommandAttribute : Attribute
{
    internal CgmCommandAttribute()
    {
    }

    /// <param name="element">The member of the enum of its class of elements.</param>
    /// <param name="keyword">The keyword in clear text.</param>
    internal CgmCommandAttribute(object element, string keyword)
    {
    }

    /// <param name="elementClass">The class of the element.</param>
    /// <param name="elementId">The number of the element in its class.</param>
    /// <param name="keyword">The keyword in clear text; empty for an element that clear text lacks.</param>
    internal CgmCommandAttribute(ClassCode elementClass, int elementId, string keyword)
    {
    }

    /// <summary>Gets or sets what the constructor without parameters creates, for its documentation.</summary>
    public string? Default { get; set; }

    /// <summary>Gets or sets whether the parameters of the base class come behind those of the class.</summary>
    public bool BaseLast { get; set; }
}

/// <summary>Declares a constructor that sets properties of the command or its bases.</summary>
[AttributeUsage(AttributeTargets.Class)]
internal sealed class CgmConstructorAttribute(params string[] properties) : Attribute;

/// <summary>Declares a group of parameters that a list holds.</summary>
[AttributeUsage(AttributeTargets.Class)]
internal sealed class CgmGroupAttribute : Attribute;

/// <summary>States the keyword of an enumerated value in clear text (ISO/IEC 8632-4, clause 8).</summary>
[AttributeUsage(AttributeTargets.Field)]
internal sealed class CgmKeywordAttribute(string keyword) : Attribute;

/// <summary>
/// Declares a parameter; the derived attributes are named after the methods of <see cref="ParameterExchange"/>. On a
/// list it declares the items, which fill the rest of the element unless a count is stated.
/// </summary>
[AttributeUsage(AttributeTargets.Property)]
internal abstract class CgmParameterAttribute : Attribute
{
    /// <summary>Gets or sets whether an integer in front of the items counts them.</summary>
    public bool Counted { get; set; }

    /// <summary>Gets or sets the count of items as a C# expression over the parameters before.</summary>
    public string? Count { get; set; }
}

/// <summary>I: an integer.</summary>
internal sealed class CgmIntegerAttribute : CgmParameterAttribute;

/// <summary>IX: an index; negative ones are private.</summary>
internal sealed class CgmIndexAttribute : CgmParameterAttribute;

/// <summary>N: a name, which is an integer.</summary>
internal sealed class CgmNameAttribute : CgmParameterAttribute;

/// <summary>CI: an index into the colour table.</summary>
internal sealed class CgmColorIndexAttribute : CgmParameterAttribute;

/// <summary>E: a member of an enum whose members have keywords.</summary>
internal sealed class CgmEnumAttribute : CgmParameterAttribute;

/// <summary>E: OFF or ON.</summary>
internal sealed class CgmFlagAttribute : CgmParameterAttribute;

/// <summary>E: NO or YES.</summary>
internal sealed class CgmYesNoAttribute : CgmParameterAttribute;

/// <summary>R: a real number.</summary>
internal sealed class CgmRealAttribute : CgmParameterAttribute;

/// <summary>R: a real number that is floating point in every binary file.</summary>
internal sealed class CgmFloatingRealAttribute : CgmParameterAttribute;

/// <summary>VDC: a coordinate or a length.</summary>
internal sealed class CgmVdcAttribute : CgmParameterAttribute;

/// <summary>SS: a size specification, by a mode that is a member of <see cref="PictureCoding"/>.</summary>
internal sealed class CgmSizeAttribute(string mode) : CgmParameterAttribute;

/// <summary>P: a point.</summary>
internal sealed class CgmPointAttribute : CgmParameterAttribute;

/// <summary>A point on the drawing surface of a device, two viewport coordinates.</summary>
internal sealed class CgmViewportPointAttribute : CgmParameterAttribute;

/// <summary>CO: a colour.</summary>
internal sealed class CgmColorAttribute : CgmParameterAttribute;

/// <summary>CD: a direct colour.</summary>
internal sealed class CgmDirectColorAttribute : CgmParameterAttribute;

/// <summary>S: a string.</summary>
internal sealed class CgmStringAttribute : CgmParameterAttribute;

/// <summary>D: a data record.</summary>
internal sealed class CgmDataAttribute : CgmParameterAttribute;

/// <summary>SDR: a structured data record.</summary>
internal sealed class CgmRecordAttribute : CgmParameterAttribute;

/// <summary>BS: bits to the end of the element.</summary>
internal sealed class CgmBitsAttribute : CgmParameterAttribute;

/// <summary>The width of signed integers, one of some.</summary>
internal sealed class CgmSignedBitsAttribute(params int[] widths) : CgmParameterAttribute;

/// <summary>The width of unsigned integers, one of some.</summary>
internal sealed class CgmUnsignedBitsAttribute(params int[] widths) : CgmParameterAttribute;

/// <summary>The width of the colours of cells; 0 for that of the metafile.</summary>
internal sealed class CgmLocalBitsAttribute : CgmParameterAttribute;

/// <summary>Real number precision.</summary>
internal sealed class CgmRealFormAttribute : CgmParameterAttribute;

/// <summary>Groups of parameters, items of a list.</summary>
internal sealed class CgmGroupsAttribute : CgmParameterAttribute;

/// <summary>A parameter that the method <c>Exchange</c> and the name of the property exchanges.</summary>
internal sealed class CgmCustomAttribute : CgmParameterAttribute;
