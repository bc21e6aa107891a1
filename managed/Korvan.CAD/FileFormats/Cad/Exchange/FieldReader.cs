using Korvan.CAD.CadExceptions;

namespace Korvan.CAD.FileFormats.Cad.Exchange;

/// <summary>
/// Returns the fields of an object one by one, in the order of the file. Group codes name fields whatever the format
/// is; the class of the object states which type the value has.
/// </summary>
internal abstract class FieldReader
{
    /// <summary>The subclass of fields of which no marker tells whose they are.</summary>
    internal const string AnySubclass = "?";

    /// <summary>Gets the group code of the current field.</summary>
    internal int Code { get; private protected set; }

    /// <summary>Gets the subclass that the current field belongs to, or nothing before the first marker.</summary>
    internal string? Subclass { get; private set; }

    /// <summary>Determines whether the current field belongs to a subclass; old files have no markers.</summary>
    internal bool InSubclass(string name) =>
        Subclass is null || Subclass == name || ReferenceEquals(Subclass, AnySubclass);

    /// <summary>Gets or sets whether the fields of the current subclass were read as a sequence.</summary>
    internal bool HasReadSequence { get; set; }

    internal void EnterSubclass(string? name)
    {
        Subclass = name;
        HasReadSequence = false;
    }

    /// <summary>Goes on to the next field.</summary>
    /// <returns>Whether there is one.</returns>
    internal abstract bool Next();

    /// <summary>Makes <see cref="Next"/> give the current field again; after the last field there is none to give.
    /// </summary>
    internal abstract void Unread();

    internal abstract double GetDouble();

    /// <summary>Returns the value as an angle in degrees.</summary>
    internal abstract double GetAngle();

    internal abstract int GetInt();

    internal abstract short GetShort();

    internal abstract long GetLong();

    /// <summary>Returns the value as a string.</summary>
    internal abstract string GetString();

    /// <summary>Returns the value as a name: without blanks at its ends.</summary>
    internal abstract string GetName();

    internal abstract ulong GetHandle();

    /// <summary>Returns the value as a handle in hexadecimal.</summary>
    internal abstract string GetHandleText();

    /// <summary>Reads how many items follow; a count that the rest of the file cannot hold is damage.</summary>
    internal abstract int GetCount();

    /// <summary>Appends a chunk of binary data to the chunks before.</summary>
    internal abstract byte[] AppendBinary(byte[] before);

    /// <summary>Returns the current field as a tag of a text file.</summary>
    internal abstract CadCodeValue ToCodeValue();

    /// <summary>Describes a value that its class does not allow.</summary>
    internal abstract ImageLoadException BadValue(string cause);
}
