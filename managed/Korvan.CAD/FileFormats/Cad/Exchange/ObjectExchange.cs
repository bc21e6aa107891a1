using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;

namespace Korvan.CAD.FileFormats.Cad.Exchange;

/// <summary>
/// Carries the fields of an object in the order that its class declares them: out of the object, or into it. Each
/// method takes the present value and returns the one to keep, which is the same where the object is written.
/// </summary>
internal abstract partial class ObjectExchange
{
    /// <summary>Gets the release of the format, as a year.</summary>
    internal abstract int Release { get; }

    /// <summary>Gets whether the object takes values over.</summary>
    internal abstract bool IsReading { get; }

    /// <summary>Gets the form in which the format has the data of solids.</summary>
    internal virtual ModelerForm Modeler => ModelerForm.Unchanged;

    /// <summary>Gets whether a spline through fit points has to state its control points, too.</summary>
    internal virtual bool HasWholeSplines => false;

    /// <summary>Begins the fields of a subclass.</summary>
    internal abstract void BeginSubclass(string name);

    /// <summary>Ends the fields of a subclass: what is kept for it follows.</summary>
    internal abstract void EndSubclass(CadBaseObject target, string name);

    /// <summary>Tells whether fields follow that the format may leave out.</summary>
    /// <param name="since">The release that the fields came with, as a year; 0 for all releases.</param>
    /// <param name="isSet">Whether the object has something to write.</param>
    internal abstract bool Includes(int since, bool isSet);

    /// <summary>Determines whether an optional field follows.</summary>
    /// <param name="code">The group code of the field.</param>
    /// <param name="since">The release that the field came with, as a year; 0 for all releases.</param>
    /// <param name="isSet">Whether the object has something to write.</param>
    internal virtual bool Has(int code, int since, bool isSet) => Includes(since, isSet);

    /// <summary>Determines whether another item of a list follows whose length is not stated.</summary>
    /// <param name="code">The group code that begins an item.</param>
    /// <param name="isSet">Whether the object has one to write.</param>
    internal virtual bool HasItem(int code, bool isSet) => Includes(0, isSet);

    internal abstract bool Bool(int code, bool value);

    internal abstract short Int16(int code, short value);

    internal abstract int Int32(int code, int value);

    internal abstract long Int64(int code, long value);

    internal abstract int Enum(int code, int value);

    /// <summary>Carries the index of a colour.</summary>
    internal abstract short Color(int code, short value);

    internal abstract double Double(int code, double value);

    /// <summary>Carries an angle in degrees.</summary>
    internal abstract double Angle(int code, double value);

    internal abstract void Point(int code, Cad2DPoint point);

    internal abstract void Point(int code, Cad3DPoint point);

    internal abstract string Text(int code, string value);

    /// <summary>Carries the name of a record of a symbol table.</summary>
    internal abstract string Name(int code, SymbolTable table, string value);

    /// <summary>Carries a handle in hexadecimal.</summary>
    internal abstract string Handle(int code, HandleRole role, string value);

    internal abstract ulong Handle(int code, HandleRole role, ulong value);

    internal abstract byte[] Binary(int code, byte[] value);

    /// <summary>Carries the number of items that follow.</summary>
    /// <param name="code">The group code; 0 where text files do not state it.</param>
    /// <param name="count">The number.</param>
    internal abstract int Count(int code, int count);

    /// <summary>Carries a string of any length, which text files break into chunks.</summary>
    /// <param name="pieceCode">The group code of chunks that others follow.</param>
    /// <param name="lastCode">The group code of the last chunk.</param>
    /// <param name="value">The string.</param>
    internal abstract string LongText(int pieceCode, int lastCode, string value);

    /// <summary>Carries lines of any length.</summary>
    internal abstract void Lines(List<string> lines);

    /// <summary>Begins or ends a part of an object, which text files enclose in braces.</summary>
    internal abstract void Brace(int code, string text);

    /// <summary>Carries fields whose types their group codes tell.</summary>
    internal abstract void Tags(IList<CadCodeValue> tags);
}
