using System;
using System.Collections.Generic;
using System.Globalization;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Header;

/// <summary>Converts the values of the header section to variables of a drawing, and back.</summary>
internal static class HeaderVariableCodec
{
    private const double MillisecondsOfDay = 86_400_000;
    private const int FirstHandleGroupCode = 300;

    /// <summary>Sets the variables of a drawing.</summary>
    /// <param name="values">The values of the section.</param>
    /// <param name="release">The release of the section, as a year.</param>
    /// <param name="header">The variables.</param>
    /// <param name="nameOf">Returns the name of the record with a handle; null if there is none.</param>
    internal static void ToHeader(HeaderValues values, int release, CadHeader header, Func<ulong, string?> nameOf)
    {
        foreach (HeaderField field in HeaderFields.All)
        {
            if (release < field.Since || release > field.Until || !values.Contains(field.Name))
            {
                continue;
            }

            if (field.Coding == HeaderCoding.Flags)
            {
                HeaderFlags.ToHeader((int)values[field.Name].X, header);
            }
            else if (field.IsVariable)
            {
                SetVariable(header, field, values[field.Name], nameOf);
            }
        }
    }

    /// <summary>Returns the values of the variables that a drawing states.</summary>
    /// <param name="header">The variables.</param>
    /// <param name="handleOf">Returns the handle of the record that a variable names; 0 if there is none.</param>
    internal static HeaderValues FromHeader(CadHeader header, Func<HeaderField, string, ulong> handleOf)
    {
        HeaderValues values = new();
        foreach (HeaderField field in HeaderFields.All)
        {
            if (field.Coding == HeaderCoding.Flags)
            {
                values[field.Name] = new HeaderValue(HeaderFlags.FromHeader(header));
            }
            else if (field.IsVariable && header.Contains(field.Name) && IsReadable(header, field))
            {
                values[field.Name] = ValueOf(header, field, handleOf);
            }
        }

        return values;
    }

    // A number that a damaged file has no digits for has the value of a new drawing.
    private static bool IsReadable(CadHeader header, HeaderField field) =>
        field.Coding is HeaderCoding.Text or HeaderCoding.Handle or HeaderCoding.OwnHandle
        || header.Unreadable(field.Name).Length == 0;

    /// <summary>Returns days and milliseconds.</summary>
    /// <param name="time">The days and their fraction.</param>
    internal static HeaderValue TimeOf(double time)
    {
        double days = Math.Floor(time);
        double milliseconds = Math.Round((time - days) * MillisecondsOfDay);
        return milliseconds < MillisecondsOfDay ? new HeaderValue(days, milliseconds) : new HeaderValue(days + 1);
    }

    private static void SetVariable(
        CadHeader header, HeaderField field, HeaderValue value, Func<ulong, string?> nameOf)
    {
        switch (field.Coding)
        {
            case HeaderCoding.Point:
                SetPoint(header, field, [value.X, value.Y, value.Z]);
                break;
            case HeaderCoding.FlatPoint:
                SetPoint(header, field, [value.X, value.Y]);
                break;
            case HeaderCoding.Text:
                header.Set(field.Name, field.GroupCode, value.Text ?? "");
                break;
            case HeaderCoding.Time:
                SetNumber(header, field, value.X + (value.Y / MillisecondsOfDay));
                break;
            case HeaderCoding.OwnHandle:
                header.Set(field.Name, field.GroupCode, HandleText.Format(value.Handle));
                break;
            case HeaderCoding.Handle:
                SetReference(header, field, value.Handle, nameOf);
                break;
            default:
                SetNumber(header, field, value.X);
                break;
        }
    }

    private static void SetReference(CadHeader header, HeaderField field, ulong handle, Func<ulong, string?> nameOf)
    {
        if (field.GroupCode < FirstHandleGroupCode)
        {
            header.Set(field.Name, field.GroupCode, nameOf(handle) ?? "");
        }
        else if (handle != 0)
        {
            header.Set(field.Name, field.GroupCode, HandleText.Format(handle));
        }
    }

    private static void SetNumber(CadHeader header, HeaderField field, double value) =>
        header.Set(field.Name, field.GroupCode, Text(value));

    private static void SetPoint(CadHeader header, HeaderField field, ReadOnlySpan<double> coordinates)
    {
        List<CadCodeValue> tags = header.TagsOf(field.Name);
        tags.Clear();
        for (int i = 0; i < coordinates.Length; i++)
        {
            tags.Add(new CadCodeValue(field.GroupCode + (10 * i), Text(coordinates[i])));
        }
    }

    // Infinite numbers, which damaged files have, are no values of variables.
    private static string Text(double value) =>
        (double.IsFinite(value) ? value : 0).ToString("R", CultureInfo.InvariantCulture);

    private static HeaderValue ValueOf(
        CadHeader header, HeaderField field, Func<HeaderField, string, ulong> handleOf)
    {
        switch (field.Coding)
        {
            case HeaderCoding.Point or HeaderCoding.FlatPoint:
                Cad3DPoint point = header.GetPoint(field.Name);
                return new HeaderValue(point.X, point.Y, point.Z);
            case HeaderCoding.Text:
                return new HeaderValue(0) { Text = header.GetString(field.Name) };
            case HeaderCoding.Time:
                return TimeOf(header.GetDouble(field.Name));
            case HeaderCoding.OwnHandle:
                return new HeaderValue(0) { Handle = HandleOf(header.GetString(field.Name)) };
            case HeaderCoding.Handle:
                string text = header.GetString(field.Name);
                ulong handle = field.GroupCode < FirstHandleGroupCode ? handleOf(field, text) : HandleOf(text);
                return new HeaderValue(0) { Handle = handle };
            default:
                return new HeaderValue(header.GetDouble(field.Name));
        }
    }

    private static ulong HandleOf(string text) =>
        ulong.TryParse(text, NumberStyles.HexNumber, CultureInfo.InvariantCulture, out ulong handle) ? handle : 0;
}
