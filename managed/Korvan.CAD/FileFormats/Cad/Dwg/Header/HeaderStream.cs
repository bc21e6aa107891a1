namespace Korvan.CAD.FileFormats.Cad.Dwg.Header;

/// <summary>Exchanges the fields of the header and class sections: a reader returns what the file has, a writer writes
/// the value and returns it.</summary>
internal abstract class HeaderStream
{
    /// <summary>Gets the release as a year.</summary>
    internal abstract int Release { get; }

    internal abstract bool Bit(bool value);

    internal abstract int BitShort(int value);

    internal abstract int BitLong(int value);

    internal abstract ulong BitLongLong(ulong value);

    internal abstract int RawByte(int value);

    internal abstract double BitDouble(double value);

    internal abstract double RawDouble(double value);

    internal abstract string Text(string value);

    /// <summary>Exchanges a reference, which later releases keep apart from the data.</summary>
    internal abstract ulong Handle(int code, ulong value);

    /// <summary>Exchanges a handle that is a value, among the data in all releases.</summary>
    internal abstract ulong OwnHandle(ulong value);
}
