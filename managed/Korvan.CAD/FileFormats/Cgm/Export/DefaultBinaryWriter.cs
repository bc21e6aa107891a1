using System;
using System.Buffers;
using System.Buffers.Binary;
using System.Collections.Generic;
using System.Globalization;
using System.IO;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Commands;

namespace Korvan.CAD.FileFormats.Cgm.Export;

/// <summary>Writes commands as a binary metafile (ISO/IEC 8632-3). Precisions, colours and modes apply to the commands
/// after those that set them; a number that does not fit its precision raises an error.</summary>
public sealed class DefaultBinaryWriter : IBinaryWriter, IParameterCodec
{
    private const int LongForm = 31;
    private const int MaxPartLength = 0x7FFE;
    private const int MorePartsFlag = 0x8000;

    private readonly Stream _stream;
    private readonly string _name;
    private readonly bool _isInner;
    private readonly ArrayBufferWriter<byte> _parameters = new();
    private readonly ArrayBufferWriter<byte> _element = new();
    private long _count;

    /// <summary>Creates a writer to a stream.</summary>
    /// <param name="stream">The stream; it stays open.</param>
    public DefaultBinaryWriter(Stream stream)
        : this(stream, (stream as FileStream)?.Name ?? "stream")
    {
    }

    internal DefaultBinaryWriter(Stream stream, string name)
        : this(stream, name, new CodingState(), false)
    {
        Verify.NotNull(stream);
    }

    private DefaultBinaryWriter(Stream stream, string name, CodingState state, bool isInner)
    {
        _stream = stream;
        _name = name;
        _isInner = isInner;
        State = state;
        Exchange = new BinaryWriting(this, state);
    }

    /// <inheritdoc/>
    public int Position => _parameters.WrittenCount;

    internal CodingState State { get; }

    internal ParameterExchange Exchange { get; }

    /// <inheritdoc/>
    ParameterExchange IParameterCodec.Exchange => Exchange;

    /// <summary>Writes one element.</summary>
    /// <param name="command">Its command.</param>
    /// <exception cref="ImageSaveException">A parameter cannot be written; no part of the element was.</exception>
    public void WriteCommand(Command command)
    {
        Verify.NotNull(command);
        _parameters.ResetWrittenCount();
        try
        {
            WriteParameters(command);
            command.Apply(State);
        }
        catch (CgmDataException e)
        {
            State.ReplacesDefaults &= _isInner;
            string place = MessageLog.Place("command", _count, command.ElementClass, command.ElementId);
            throw new ImageSaveException($"'{_name}', {place}: {e.Message}.");
        }

        WriteElement(((int)command.ElementClass << 12) | (command.ElementId << 5));
        _count++;
    }

    /// <inheritdoc/>
    public void WriteInteger(int value) => WriteSigned(value, State.IntegerBits);

    /// <inheritdoc/>
    public void WriteIndex(int value) => WriteSigned(value, State.IndexBits);

    /// <inheritdoc/>
    public void WriteName(int value) => WriteSigned(value, State.NameBits);

    /// <inheritdoc/>
    public void WriteColorIndex(int value) => WriteUnsigned(value, State.ColorIndexBits);

    /// <inheritdoc/>
    public void WriteEnumeration(int value) => WriteSigned(value, 16);

    /// <inheritdoc/>
    public void WriteUnsigned(long value, int bits)
    {
        NumberRange.Verify(value, NumberRange.Unsigned(bits), bits);
        WriteBits(value, bits);
    }

    /// <inheritdoc/>
    public void WriteReal(double value) => WriteReal(value, State.Real);

    /// <inheritdoc/>
    public void WriteVdc(double value)
    {
        if (State.HasRealCoordinates)
        {
            WriteReal(value, State.Current.VdcReal);
        }
        else
        {
            WriteSigned(NumberRange.Whole(value), State.Current.VdcIntegerBits);
        }
    }

    /// <inheritdoc/>
    public void WriteViewportCoordinate(VC value)
    {
        Verify.NotNull(value);
        if (State.ViewportMode == DeviceViewportSpecificationMode.Mode.FractionOfDrawingSurface)
        {
            WriteReal(value.Value);
        }
        else
        {
            WriteInteger(NumberRange.Whole(value.Value));
        }
    }

    /// <inheritdoc/>
    public void WritePoint(CgmPoint value)
    {
        Verify.NotNull(value);
        WriteVdc(value.X);
        WriteVdc(value.Y);
    }

    /// <inheritdoc/>
    public void WriteDirectColor(CgmColor value)
    {
        Span<long> components = stackalloc long[State.ColorComponents];
        new ColorCoding(State).FromColor(value, components);
        foreach (long component in components)
        {
            WriteColorComponent(component);
        }
    }

    /// <inheritdoc/>
    public void WriteColorComponent(long value) => WriteUnsigned(value, State.ColorBits);

    /// <inheritdoc/>
    public void WriteString(string value)
    {
        Verify.NotNull(value);
        WriteData(TextCoding.Encode(value, State));
    }

    /// <inheritdoc/>
    public void WriteData(byte[] value)
    {
        Verify.NotNull(value);
        const int longString = 255;
        if (value.Length < longString)
        {
            WriteBits(value.Length, 8);
            WriteBytes(value);
            return;
        }

        WriteBits(longString, 8);
        for (int at = 0; at < value.Length; at += MaxPartLength)
        {
            int count = Math.Min(MaxPartLength, value.Length - at);
            WriteBits(count | (at + count < value.Length ? MorePartsFlag : 0), 16);
            _parameters.Write(value.AsSpan(at, count));
        }
    }

    /// <inheritdoc/>
    public void WriteStructuredData(StructuredDataRecord value)
    {
        Verify.NotNull(value);
        var inner = new DefaultBinaryWriter(_stream, _name, State, true);
        StructuredDataCoding.Write(inner.Exchange, value);
        WriteData(inner._parameters.WrittenSpan.ToArray());
    }

    /// <inheritdoc/>
    public void WriteBytes(byte[] value) => _parameters.Write(value);

    /// <summary>Writes elements as the parameters of this one.</summary>
    internal void WriteInner(List<Command> commands)
    {
        if (_isInner)
        {
            throw new CgmDataException("it is nested in an element of its kind");
        }

        var content = new MemoryStream();
        var inner = new DefaultBinaryWriter(content, _name, State, true);
        commands.ForEach(command => inner.WriteCommand(ParameterExchange.Needed(command)));
        WriteBytes(content.ToArray());
    }

    private void WriteParameters(Command command)
    {
        if (command is not UnknownCommand unknown)
        {
            command.Exchange(Exchange);
        }
        else if (unknown.Source.Length == 0)
        {
            WriteBytes(unknown.Parameters);
        }
        else
        {
            string keyword = unknown.Source.Split(' ')[0];
            throw new CgmDataException(
                $"'{keyword}' of a clear text file is not defined by the standard, so it has no binary form");
        }
    }

    private void WriteElement(int header)
    {
        ReadOnlySpan<byte> data = _parameters.WrittenSpan;
        _element.ResetWrittenCount();
        if (data.Length < LongForm)
        {
            WriteWord(header | data.Length);
            WriteEven(data);
        }
        else
        {
            WriteWord(header | LongForm);
            for (; data.Length > MaxPartLength; data = data[MaxPartLength..])
            {
                WriteWord(MaxPartLength | MorePartsFlag);
                WriteEven(data[..MaxPartLength]);
            }

            WriteWord(data.Length);
            WriteEven(data);
        }

        _stream.Write(_element.WrittenSpan);
    }

    private void WriteWord(int word)
    {
        BinaryPrimitives.WriteUInt16BigEndian(_element.GetSpan(2), (ushort)word);
        _element.Advance(2);
    }

    private void WriteEven(ReadOnlySpan<byte> data)
    {
        _element.Write(data);
        if ((data.Length & 1) == 1)
        {
            _element.Write((ReadOnlySpan<byte>)[0]);
        }
    }

    private void WriteSigned(int value, int bits)
    {
        NumberRange.Verify(value, NumberRange.Signed(bits), bits);
        WriteBits(value, bits);
    }

    private void WriteReal(double value, Precision precision)
    {
        switch (precision)
        {
            case Precision.Fixed32:
                WriteFixed(value, 16);
                break;
            case Precision.Fixed64:
                WriteFixed(value, 32);
                break;
            case Precision.Floating32:
                WriteBits(BitConverter.SingleToInt32Bits((float)NumberRange.Finite((float)value)), 32);
                break;
            default:
                WriteBits(BitConverter.DoubleToInt64Bits(NumberRange.Finite(value)), 64);
                break;
        }
    }

    private void WriteFixed(double value, int fractionBits)
    {
        double scaled = Math.Round(NumberRange.Finite(value) * (1L << fractionBits));
        double limit = Math.Pow(2, (2 * fractionBits) - 1);
        if (scaled < -limit || scaled >= limit)
        {
            string number = value.ToString(CultureInfo.InvariantCulture);
            throw new CgmDataException(
                $"the real number {number} does not fit into {fractionBits} bits and {fractionBits} bits of fraction; "
                + "REALPREC or VDCREALPREC can set a larger precision");
        }

        WriteBits((long)scaled, 2 * fractionBits);
    }

    private void WriteBits(long value, int bits)
    {
        int count = bits / 8;
        Span<byte> target = _parameters.GetSpan(count);
        for (int i = count - 1; i >= 0; i--, value >>= 8)
        {
            target[i] = (byte)value;
        }

        _parameters.Advance(count);
    }
}
