#!/usr/bin/env python3
"""Makes the program's own sounds and icons in src/ui/win32/res (committed; run again only
to change them). ALARM is a falling two-tone call, AUTO a short soft double chime. The icons
are drawn here: an eye in a green disc (monitoring on), the same in red with a bar (off),
a blue shield with a K for the windows, and the small pictures of the lists (a key, a
star, a telephone, a file, a folder, a gear, a globe, a registry value), each at 16 and
32 pixels."""
import math, os, struct

RES = os.path.join(os.path.dirname(__file__), '..', 'src', 'ui', 'win32', 'res')
RATE = 11025

def wav(path, samples):
    data = bytes(max(0, min(255, int(128 + 110 * s))) for s in samples)
    with open(path, 'wb') as f:
        f.write(b'RIFF' + struct.pack('<I', 36 + len(data)) + b'WAVE')
        f.write(b'fmt ' + struct.pack('<IHHIIHH', 16, 1, 1, RATE, RATE, 1, 8))
        f.write(b'data' + struct.pack('<I', len(data)) + data)

def tone(freq, secs, vol=1.0):
    n = int(RATE * secs)
    return [vol * math.sin(2 * math.pi * freq * i / RATE) * min(1, i / 200, (n - i) / 200) for i in range(n)]

def alarm():
    s = []
    for _ in range(3):
        s += tone(1046, 0.12) + tone(784, 0.12)
    return s

def auto():
    return tone(880, 0.08, 0.6) + [0.0] * int(RATE * 0.04) + tone(1318, 0.12, 0.6)

def ico(path, pixel):
    """32x32, 32-bit BGRA icon; pixel(x, y) gives (r, g, b, a) with y from the top."""
    w = h = 32
    rows = []
    for y in range(h - 1, -1, -1):
        rows.append(b''.join(struct.pack('<BBBB', *(lambda p: (p[2], p[1], p[0], p[3]))(pixel(x, y))) for x in range(w)))
    xor = b''.join(rows)
    andmask = b'\x00' * (4 * h)
    bih = struct.pack('<IiiHHIIiiII', 40, w, h * 2, 1, 32, 0, len(xor) + len(andmask), 0, 0, 0, 0)
    img = bih + xor + andmask
    with open(path, 'wb') as f:
        f.write(struct.pack('<HHH', 0, 1, 1))
        f.write(struct.pack('<BBBBHHII', w, h, 0, 0, 1, 32, len(img), 22))
        f.write(img)

def disc(colour, bar=False):
    def px(x, y):
        cx, cy = x - 15.5, y - 15.5
        r = math.hypot(cx, cy)
        if r > 15.5:
            return (0, 0, 0, 0)
        if r > 14:
            return (40, 40, 40, 255)
        # an eye: white almond with a dark pupil
        if abs(cy) < 7 * math.cos(min(abs(cx) / 11, 1.0) * math.pi / 2) and abs(cx) < 11:
            if math.hypot(cx, cy) < 4:
                return (20, 20, 30, 255)
            return (250, 250, 250, 255)
        if bar and abs(cx + cy) < 2.5:
            return (250, 250, 250, 255)
        return colour + (255,)
    return px

def shield(x, y):
    """A blue shield with a white K: the program's window icon."""
    cx = x - 15.5
    if y < 2 or y > 30:
        return (0, 0, 0, 0)
    half = 13 if y < 16 else 13 * (1 - ((y - 16) / 14.5) ** 2) ** 0.5
    if abs(cx) > half:
        return (0, 0, 0, 0)
    if abs(cx) > half - 1.5 or y < 3.5:
        return (20, 40, 90, 255)
    # the letter: a stem and two arms meeting at its middle
    stem = 9 <= x <= 12 and 7 <= y <= 25
    arm = 7 <= y <= 25 and abs((x - 12) - abs(y - 16) * 0.85) < 1.7 and x >= 12
    if stem or arm:
        return (250, 250, 250, 255)
    return (40, 90, 190, 255)

def ico_multi(path, shape, sizes=(16, 32), sub=4):
    """An icon of several sizes from SHAPE(x, y), drawn on a 16-unit grid with y from the
    top, which gives (r, g, b, a) or None; SUB x SUB samples a pixel smooth the edges."""
    images = []
    for n in sizes:
        k = 16 / n
        rows = []
        for py in range(n - 1, -1, -1):
            row = b''
            for px in range(n):
                acc = [0.0, 0.0, 0.0, 0.0]
                for sy in range(sub):
                    for sx in range(sub):
                        c = shape((px + (sx + 0.5) / sub) * k, (py + (sy + 0.5) / sub) * k)
                        if c:
                            a = c[3] / 255
                            acc[0] += c[0] * a; acc[1] += c[1] * a; acc[2] += c[2] * a; acc[3] += a
                a = acc[3] / (sub * sub)
                rgb = [int(round(v / acc[3])) if acc[3] else 0 for v in acc[:3]]
                row += struct.pack('<BBBB', rgb[2], rgb[1], rgb[0], int(round(255 * a)))
            rows.append(row)
        xor = b''.join(rows)
        andmask = b'\x00' * (4 * ((n + 31) // 32) * n)
        bih = struct.pack('<IiiHHIIiiII', 40, n, n * 2, 1, 32, 0, len(xor) + len(andmask), 0, 0, 0, 0)
        images.append((n, bih + xor + andmask))
    with open(path, 'wb') as f:
        f.write(struct.pack('<HHH', 0, 1, len(images)))
        offset = 6 + 16 * len(images)
        for n, img in images:
            f.write(struct.pack('<BBBBHHII', n % 256, n % 256, 0, 0, 1, 32, len(img), offset))
            offset += len(img)
        for _, img in images:
            f.write(img)

def outlined(layers):
    """Layers (inside(x, y), fill, edge) drawn in order, later on top; a point of a layer
    within 0.9 units of its border takes the edge colour."""
    d = 0.9
    def px(x, y):
        out = None
        for inside, fill, edge in layers:
            if not inside(x, y):
                continue
            rim = edge and not all(inside(x + dx, y + dy) for dx, dy in ((d, 0), (-d, 0), (0, d), (0, -d)))
            out = (edge if rim else fill) + (255,)
        return out
    return px

def polygon(points):
    def inside(x, y):
        hit = False
        for (x1, y1), (x2, y2) in zip(points, points[1:] + points[:1]):
            if (y1 > y) != (y2 > y) and x < x1 + (y - y1) * (x2 - x1) / (y2 - y1):
                hit = not hit
        return hit
    return inside

def rect(x1, y1, x2, y2):
    return lambda x, y: x1 <= x < x2 and y1 <= y < y2

def circle(cx, cy, r):
    return lambda x, y: math.hypot(x - cx, y - cy) < r

def union(*parts):
    return lambda x, y: any(p(x, y) for p in parts)

def minus(a, b):
    return lambda x, y: a(x, y) and not b(x, y)

def key_shape():
    """A golden key lying across: a ring at the left, the shaft with two teeth."""
    body = union(minus(circle(4.5, 8, 3.8), circle(4.5, 8, 1.4)), rect(7.5, 6.8, 15.2, 9.2),
                 rect(11, 9, 12.6, 12), rect(13.4, 9, 15.2, 11.5))
    return outlined([(body, (240, 190, 50), (130, 85, 10))])

def star_shape():
    pts = []
    for i in range(10):
        r = 7.6 if i % 2 == 0 else 3.2
        a = -math.pi / 2 + i * math.pi / 5
        pts.append((8 + r * math.cos(a), 8.6 + r * math.sin(a)))
    return outlined([(polygon(pts), (255, 210, 40), (160, 100, 0))])

def phone_shape():
    """An old desk telephone: the handset across the top, the body with a white dial."""
    handset = union(rect(1, 2.5, 15, 5.5), rect(0.8, 2.5, 4.6, 8), rect(11.4, 2.5, 15.2, 8))
    body = polygon([(4, 7), (12, 7), (14.5, 14.5), (1.5, 14.5)])
    return outlined([(body, (200, 45, 45), (100, 20, 20)), (handset, (60, 60, 70), (25, 25, 30)),
                     (circle(8, 11, 2.4), (245, 245, 245), (100, 20, 20))])

def file_shape():
    page = polygon([(2.5, 0.8), (10, 0.8), (13.5, 4.3), (13.5, 15.2), (2.5, 15.2)])
    fold = polygon([(10, 0.8), (10, 4.3), (13.5, 4.3)])
    lines = union(*(rect(4.8, y, 11.4, y + 1) for y in (6, 8.2, 10.4, 12.6)))
    return outlined([(page, (255, 255, 255), (90, 90, 100)), (fold, (205, 210, 220), (90, 90, 100)),
                     (lines, (110, 140, 190), None)])

def folder_shape():
    back = polygon([(0.8, 2.5), (6, 2.5), (7.5, 4.2), (15.2, 4.2), (15.2, 14), (0.8, 14)])
    front = polygon([(0.8, 6.5), (15.2, 6.5), (15.2, 14), (0.8, 14)])
    return outlined([(back, (215, 165, 45), (140, 95, 15)), (front, (252, 215, 95), (140, 95, 15))])

def gear_shape():
    def teeth(x, y):
        r = math.hypot(x - 8, y - 8)
        a = math.atan2(y - 8, x - 8)
        return r < 5.4 or (r < 7.6 and math.cos(8 * a) > 0.3)
    return outlined([(minus(teeth, circle(8, 8, 2.2)), (120, 140, 170), (45, 55, 80))])

def globe_shape():
    ball = circle(8, 8, 7.4)
    def land(x, y):
        u, v = x - 8, y - 8
        return (math.sin(u * 0.9 + 1) + math.cos(v * 1.1 - 0.5) + 0.6 * math.sin((u + v) * 0.7)) > 1.0
    def grid(x, y):
        u, v = x - 8, y - 8
        return abs(v) < 0.45 or abs(u) < 0.45 or abs(math.hypot(u * 2.2, v) - 7) < 0.5
    return outlined([(ball, (60, 120, 215), (20, 50, 120)), (lambda x, y: ball(x, y) and land(x, y), (70, 170, 80), None),
                     (lambda x, y: circle(8, 8, 6.5)(x, y) and grid(x, y), (170, 200, 240), None)])

def value_shape():
    """A registry value: a card with a red name bar and blue and green data bars."""
    card = rect(1, 2.5, 15, 13.5)
    return outlined([(card, (245, 246, 250), (70, 80, 110)), (rect(3, 4.8, 7.5, 6.6), (210, 50, 50), None),
                     (rect(3, 7.4, 13, 9.2), (50, 90, 200), None), (rect(3, 10, 10.5, 11.8), (50, 160, 80), None)])

# The small pictures of the lists, by file; the program maps its picture numbers to them.
PICTURES = {
    'schluessel.ico': key_shape, 'favorit.ico': star_shape, 'telefon.ico': phone_shape,
    'datei.ico': file_shape, 'ordner.ico': folder_shape, 'dienst.ico': gear_shape,
    'globus.ico': globe_shape, 'wert.ico': value_shape,
}

if __name__ == '__main__':
    os.makedirs(RES, exist_ok=True)
    wav(os.path.join(RES, 'alarm.wav'), alarm())
    wav(os.path.join(RES, 'auto.wav'), auto())
    ico(os.path.join(RES, 'an.ico'), disc((30, 150, 60)))
    ico(os.path.join(RES, 'aus.ico'), disc((190, 30, 30), bar=True))
    ico(os.path.join(RES, 'kestrella.ico'), shield)
    for name, shape in PICTURES.items():
        ico_multi(os.path.join(RES, name), shape())
    print('resources written to', os.path.normpath(RES))
