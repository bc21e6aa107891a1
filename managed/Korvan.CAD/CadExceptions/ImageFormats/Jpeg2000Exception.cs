using System;

namespace Korvan.CAD.CadExceptions.ImageFormats;

/// <summary>A JPEG 2000 image violates its format, or an operation is not valid for it.</summary>
public class Jpeg2000Exception : ImageException
{
    /// <summary>Creates the exception with a message.</summary>
    /// <param name="message">The message: what failed, where, and how to correct it.</param>
    public Jpeg2000Exception(string message)
        : base(message)
    {
    }

    /// <summary>Creates the exception with a message and its cause.</summary>
    /// <param name="message">The message: what failed, where, and how to correct it.</param>
    /// <param name="innerException">The exception that caused this one.</param>
    public Jpeg2000Exception(string message, Exception? innerException)
        : base(message, innerException)
    {
    }
}
