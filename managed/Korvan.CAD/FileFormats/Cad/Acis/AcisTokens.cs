namespace Korvan.CAD.FileFormats.Cad.Acis;

/// <summary>The tokens of a record on their way between text and values. Text does not tell all types of its values,
/// and binary data does not tell the keywords of flags, so that layouts say what is next.</summary>
internal abstract class AcisTokens
{
    internal abstract bool IsEnd { get; }

    /// <summary>Gets whether a pointer, a string or an index among the pointers is next.</summary>
    internal abstract bool IsLink { get; }

    internal abstract bool IsNumber { get; }

    internal abstract bool IsInteger { get; }

    internal abstract bool IsOpen { get; }

    internal abstract bool IsClose { get; }

    /// <summary>Gets the keyword that is next; empty for other tokens.</summary>
    internal abstract string Keyword { get; }

    /// <summary>Passes a token of any type.</summary>
    internal abstract void Pass();

    internal abstract double Double();

    internal abstract long Integer(AcisKind kind);

    /// <summary>Passes three numbers, which binary data have as one value.</summary>
    internal abstract void Triple(AcisKind kind);

    /// <summary>Determines whether a flag is next that has certain keywords.</summary>
    internal abstract bool IsFlag(AcisFlag flag);

    internal abstract bool Flag(AcisFlag flag);

    /// <summary>Determines whether one of several keywords is next, or the number of one.</summary>
    internal abstract bool IsEnumeration(string[] names);

    internal abstract void Enumeration(string[] names);

    /// <summary>Begins the record again.</summary>
    internal abstract void Restart();
}

/// <summary>The keywords of a flag in texts.</summary>
internal sealed record AcisFlag(string No, string Yes);
