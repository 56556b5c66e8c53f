// The page side of the map display. The C++ widget drives it through window.zrkMap (batches of
// zones, routes and tracks as JSON arrays) and hears back through the WebChannel object "bridge".
'use strict';

(function () {
  var bridge = null;
  var map = null;
  var renderer = null;
  var zones = {};          // id -> { data, circle, marker }
  var zoneCount = 0;
  var clusters = null;
  var circleLayer = null;
  var routeLayer = null;
  var trackLayer = null;
  var baseLayer = null;
  var selected = null;     // { id, centre, edge } while a zone is being edited
  var routes = [];
  var pendingShown = null; // start time of a batch whose markers are still being clustered

  var ZONE_STYLE = { color: '#1f6fb2', weight: 1, fillColor: '#1f6fb2', fillOpacity: 0.15 };
  var SELECTED_STYLE = { color: '#d0421b', weight: 2, fillColor: '#d0421b', fillOpacity: 0.2 };
  var COURSE_STYLE = { color: '#0d3f6b', weight: 2, opacity: 0.9 };
  var ROUTE_COLOURS = ['#2a8f3a', '#8a2be2', '#c27c0e', '#0b7a8c', '#b0306a'];
  var METRES_PER_DEGREE = 111320;

  function call(name) {
    var args = Array.prototype.slice.call(arguments, 1);
    if (bridge && bridge[name])
      bridge[name].apply(bridge, args);
  }

  // ---- the coordinate grid drawn in the page (no tiles are needed)
  var GRID_STEPS = [30, 20, 10, 5, 2, 1, 0.5, 0.2, 0.1, 0.05, 0.02, 0.01, 0.005, 0.002, 0.001, 0.0005, 0.0002, 0.0001];

  function decimalsOf(step) {
    var d = 0;
    while (d < 5 && Math.abs(Math.round(step * Math.pow(10, d)) - step * Math.pow(10, d)) > 1e-9)
      ++d;
    return d;
  }

  var GridLayer = L.GridLayer.extend({
    createTile: function (coords) {
      var size = this.getTileSize();
      var tile = document.createElement('canvas');
      tile.width = size.x;
      tile.height = size.y;
      var ctx = tile.getContext('2d');
      var origin = coords.scaleBy(size);
      var nw = map.unproject(origin, coords.z);
      var se = map.unproject(origin.add(size), coords.z);
      var lngSpan = se.lng - nw.lng;
      var step = GRID_STEPS[GRID_STEPS.length - 1];
      for (var i = 0; i < GRID_STEPS.length; ++i) {
        if (GRID_STEPS[i] <= lngSpan) { step = GRID_STEPS[i]; break; }
      }
      var digits = decimalsOf(step);
      ctx.strokeStyle = '#c9c4b5';
      ctx.fillStyle = '#7d7768';
      ctx.lineWidth = 1;
      ctx.font = '10px sans-serif';
      var lng;
      for (lng = Math.ceil(nw.lng / step) * step; lng <= se.lng; lng += step) {
        var x = Math.round((lng - nw.lng) / lngSpan * size.x) + 0.5;
        ctx.beginPath(); ctx.moveTo(x, 0); ctx.lineTo(x, size.y); ctx.stroke();
        ctx.fillText(lng.toFixed(digits) + '°', x + 2, 10);
      }
      for (var lat = Math.ceil(se.lat / step) * step; lat <= nw.lat; lat += step) {
        var y = Math.round(map.project([lat, nw.lng], coords.z).y - origin.y) + 0.5;
        ctx.beginPath(); ctx.moveTo(0, y); ctx.lineTo(size.x, y); ctx.stroke();
        ctx.fillText(lat.toFixed(digits) + '°', 2, y - 2);
      }
      return tile;
    }
  });

  // ---- zones
  function zoneIcon(id, isSelected) {
    return L.divIcon({ className: isSelected ? 'zrk-zone zrk-zone-selected' : 'zrk-zone',
                       html: String(id), iconSize: [18, 18] });
  }

  // A point at a distance (metres) and a heading (degrees clockwise from north) from another.
  function offsetPoint(from, metres, degrees) {
    var a = degrees * Math.PI / 180;
    var cos = Math.max(Math.cos(from.lat * Math.PI / 180), 1e-6);
    return L.latLng(from.lat + metres * Math.cos(a) / METRES_PER_DEGREE,
                    from.lng + metres * Math.sin(a) / (METRES_PER_DEGREE * cos));
  }

  // The entry course of a zone that checks it ("c", degrees, absent or negative otherwise): an
  // arrow from the centre to the edge, pointing the way a vehicle must move to count as entering.
  function courseLines(centre, radius, course) {
    var tip = offsetPoint(centre, radius, course);
    var wing = radius * 0.3;
    return [[centre, tip], [offsetPoint(tip, wing, course + 150), tip, offsetPoint(tip, wing, course - 150)]];
  }

  function hasCourse(d) {
    return typeof d.c === 'number' && d.c >= 0;
  }

  // Adds, moves or drops the zone's course arrow after its data, centre or radius changed.
  function placeCourse(z) {
    if (!hasCourse(z.data)) {
      if (z.course) {
        circleLayer.removeLayer(z.course);
        z.course = null;
      }
      return;
    }
    var lines = courseLines(z.circle.getLatLng(), z.circle.getRadius(), z.data.c);
    if (z.course) {
      z.course.setLatLngs(lines);
    } else {
      z.course = L.polyline(lines, L.extend({ renderer: renderer, interactive: false }, COURSE_STYLE));
      circleLayer.addLayer(z.course);
    }
  }

  function makeZone(z) {
    var ll = [z.lat, z.lon];
    var circle = L.circle(ll, L.extend({ radius: z.r, renderer: renderer }, ZONE_STYLE));
    var marker = L.marker(ll, { icon: zoneIcon(z.id, false), title: z.name });
    circle.on('click', function (e) { L.DomEvent.stopPropagation(e); call('onZoneClicked', z.id); });
    marker.on('click', function () { call('onZoneClicked', z.id); });
    return { data: z, circle: circle, marker: marker, course: null };
  }

  // With many zones, circles a pixel wide say nothing at small scales and cost every redraw there:
  // the clustered markers stand for them until the user zooms in.
  var CIRCLES_MIN_ZOOM = 11;
  var CIRCLES_ALWAYS_UP_TO = 2000;
  function updateCircleVisibility() {
    var show = zoneCount <= CIRCLES_ALWAYS_UP_TO || map.getZoom() >= CIRCLES_MIN_ZOOM;
    if (show && !map.hasLayer(circleLayer))
      map.addLayer(circleLayer);
    else if (!show && map.hasLayer(circleLayer))
      map.removeLayer(circleLayer);
  }

  function clearZones() {
    deselect();
    clusters.clearLayers();
    circleLayer.clearLayers();
    zones = {};
    zoneCount = 0;
  }

  // After the layers are in, wait for two frames so that what is reported has been painted.
  function reportShown(started, count) {
    requestAnimationFrame(function () {
      requestAnimationFrame(function () {
        call('onZonesShown', count, Math.round(performance.now() - started));
      });
    });
  }

  function setZones(list) {
    var started = performance.now();
    clearZones();
    var markers = [];
    for (var i = 0; i < list.length; ++i) {
      var z = makeZone(list[i]);
      zones[list[i].id] = z;
      markers.push(z.marker);
      circleLayer.addLayer(z.circle);
      placeCourse(z);
    }
    zoneCount = list.length;
    updateCircleVisibility();
    redrawRoutes();
    if (!markers.length) {
      reportShown(started, 0);
      return;
    }
    // The clusters take large batches in chunks; the last chunk reports the whole set shown.
    pendingShown = started;
    clusters.addLayers(markers);
  }

  function chunkProgress(processed, total) {
    call('onZonesProgress', processed, total);
    if (processed >= total && pendingShown !== null) {
      var started = pendingShown;
      pendingShown = null;
      reportShown(started, zoneCount);
    }
  }

  function upsertZone(d) {
    var z = zones[d.id];
    if (!z) {
      z = makeZone(d);
      zones[d.id] = z;
      ++zoneCount;
      circleLayer.addLayer(z.circle);
      clusters.addLayer(z.marker);
      placeCourse(z);
    } else {
      z.data = d;
      z.circle.setLatLng([d.lat, d.lon]);
      z.circle.setRadius(d.r);
      clusters.removeLayer(z.marker);
      z.marker.setLatLng([d.lat, d.lon]);
      z.marker.options.title = d.name;
      clusters.addLayer(z.marker);
      placeCourse(z);
      if (selected && selected.id === d.id)
        placeHandles(z);
    }
    redrawRoutes();
  }

  function removeZone(id) {
    var z = zones[id];
    if (!z)
      return;
    if (selected && selected.id === id)
      deselect();
    clusters.removeLayer(z.marker);
    circleLayer.removeLayer(z.circle);
    if (z.course)
      circleLayer.removeLayer(z.course);
    delete zones[id];
    --zoneCount;
    redrawRoutes();
  }

  // ---- editing one zone as a circle: a centre handle moves it, an edge handle sets the radius
  function edgePoint(centre, radius) {
    var cos = Math.max(Math.cos(centre.lat * Math.PI / 180), 1e-6);
    return L.latLng(centre.lat, centre.lng + radius / (METRES_PER_DEGREE * cos));
  }

  function placeHandles(z) {
    var c = z.circle.getLatLng();
    selected.centre.setLatLng(c);
    selected.edge.setLatLng(edgePoint(c, z.circle.getRadius()));
  }

  function showRadius(radius) {
    selected.edge.setTooltipContent(Math.round(radius) + ' м');
  }

  function deselect() {
    if (!selected)
      return;
    var z = zones[selected.id];
    if (z) {
      z.circle.setStyle(ZONE_STYLE);
      z.marker.setIcon(zoneIcon(z.data.id, false));
    }
    map.removeLayer(selected.centre);
    map.removeLayer(selected.edge);
    selected = null;
  }

  function selectZone(id, recentre) {
    deselect();
    var z = zones[id];
    if (!z)
      return;
    z.circle.setStyle(SELECTED_STYLE);
    z.marker.setIcon(zoneIcon(id, true));
    var centre = L.marker(z.circle.getLatLng(), { draggable: true, zIndexOffset: 1000,
      icon: L.divIcon({ className: 'zrk-handle', iconSize: [14, 14] }) });
    var edge = L.marker(edgePoint(z.circle.getLatLng(), z.circle.getRadius()), { draggable: true, zIndexOffset: 1000,
      icon: L.divIcon({ className: 'zrk-edge', iconSize: [12, 12] }) });
    edge.bindTooltip('', { permanent: true, direction: 'right', className: 'zrk-radius' });
    selected = { id: id, centre: centre, edge: edge };
    centre.on('drag', function () {
      var ll = centre.getLatLng();
      z.circle.setLatLng(ll);
      edge.setLatLng(edgePoint(ll, z.circle.getRadius()));
      placeCourse(z);
    });
    centre.on('dragend', function () {
      var ll = centre.getLatLng();
      z.data.lat = ll.lat;
      z.data.lon = ll.lng;
      clusters.removeLayer(z.marker);
      z.marker.setLatLng(ll);
      clusters.addLayer(z.marker);
      redrawRoutes();
      call('onZoneMoved', id, ll.lat, ll.lng);
    });
    edge.on('drag', function () {
      var r = Math.max(1, z.circle.getLatLng().distanceTo(edge.getLatLng()));
      z.circle.setRadius(r);
      showRadius(r);
      placeCourse(z);
    });
    edge.on('dragend', function () {
      var r = Math.max(1, Math.round(z.circle.getRadius()));
      z.data.r = r;
      edge.setLatLng(edgePoint(z.circle.getLatLng(), r));
      call('onZoneResized', id, r);
    });
    centre.addTo(map);
    edge.addTo(map);
    showRadius(z.circle.getRadius());
    if (recentre)
      map.setView(z.circle.getLatLng(), Math.max(map.getZoom(), 14));
  }

  // ---- routes: lines through the centres of their stops' zones
  function redrawRoutes() {
    routeLayer.clearLayers();
    for (var i = 0; i < routes.length; ++i) {
      var pts = [];
      for (var k = 0; k < routes[i].zones.length; ++k) {
        var z = zones[routes[i].zones[k]];
        if (z)
          pts.push(z.circle.getLatLng());
      }
      if (pts.length < 2)
        continue;
      L.polyline(pts, { color: ROUTE_COLOURS[i % ROUTE_COLOURS.length], weight: 4, opacity: 0.8,
                        renderer: renderer, interactive: false }).addTo(routeLayer);
    }
  }

  function setRoutes(list) {
    routes = list;
    redrawRoutes();
  }

  // ---- a track of telemetry points: [lat, lon, time text, speed]
  function setTrack(points) {
    trackLayer.clearLayers();
    if (!points.length)
      return;
    var lls = [];
    for (var i = 0; i < points.length; ++i) {
      var p = points[i];
      var ll = L.latLng(p[0], p[1]);
      lls.push(ll);
      L.circleMarker(ll, { radius: 3, color: '#b0306a', weight: 1, fillOpacity: 0.9, renderer: renderer })
        .bindPopup(p[2] + '<br>' + p[3] + ' км/ч').addTo(trackLayer);
    }
    L.polyline(lls, { color: '#b0306a', weight: 3, renderer: renderer, interactive: false }).addTo(trackLayer);
    map.fitBounds(L.latLngBounds(lls).pad(0.1));
  }

  // ---- background: the grid, a tile server's address or the local tiles' scheme
  function setTiles(url) {
    if (baseLayer)
      map.removeLayer(baseLayer);
    baseLayer = url ? L.tileLayer(url, { maxZoom: 19 }) : new GridLayer({ maxZoom: 19 });
    baseLayer.addTo(map);
  }

  function fitAll() {
    var b = null;
    for (var id in zones) {
      var ll = zones[id].circle.getLatLng();
      b = b ? b.extend(ll) : L.latLngBounds(ll, ll);
    }
    if (b)
      map.fitBounds(b.pad(0.1), { maxZoom: 15 });
  }

  // What the page shows, for the widget's owner and its tests.
  function stats() {
    var routeLines = 0, routePoints = 0, circles = 0, courses = 0;
    routeLayer.eachLayer(function (l) { ++routeLines; routePoints += l.getLatLngs().length; });
    circleLayer.eachLayer(function (l) {
      if (l instanceof L.Circle)
        ++circles;
      else
        ++courses;
    });
    var c = map.getCenter();
    return { zones: zoneCount, circles: circles, courses: courses, clusterMarkers: clusters.getLayers().length,
             routeLines: routeLines, routePoints: routePoints,
             trackPoints: Math.max(0, trackLayer.getLayers().length - 1),
             selected: selected ? selected.id : 0, zoom: map.getZoom(), lat: c.lat, lon: c.lng,
             tiles: baseLayer instanceof L.TileLayer ? baseLayer._url : '' };
  }

  function zoneInfo(id) {
    var z = zones[id];
    if (!z)
      return null;
    var ll = z.circle.getLatLng();
    var tip = z.course ? z.course.getLatLngs()[0][1] : null;
    return { id: id, lat: ll.lat, lon: ll.lng, r: z.circle.getRadius(), name: z.data.name,
             course: hasCourse(z.data) ? z.data.c : null, courseTip: tip ? [tip.lat, tip.lng] : null };
  }

  window.zrkMap = {
    setZones: setZones, upsertZone: upsertZone, removeZone: removeZone, selectZone: selectZone,
    deselect: deselect, setRoutes: setRoutes, setTrack: setTrack, setTiles: setTiles, fitAll: fitAll,
    centre: function (lat, lon, zoom) { map.setView([lat, lon], zoom || map.getZoom()); },
    stats: stats, zoneInfo: zoneInfo,
    // For tests that play the user's part: the Leaflet map and the handles of the zone being edited.
    leaflet: function () { return map; }, editHandles: function () { return selected; }
  };

  document.addEventListener('DOMContentLoaded', function () {
    map = L.map('map', { preferCanvas: true, zoomControl: true, attributionControl: false,
                         center: [55.75, 37.62], zoom: 10, minZoom: 1, maxZoom: 19,
                         doubleClickZoom: false });
    renderer = L.canvas({ padding: 0.5 });
    circleLayer = L.featureGroup().addTo(map);
    routeLayer = L.featureGroup().addTo(map);
    trackLayer = L.featureGroup().addTo(map);
    clusters = L.markerClusterGroup({ chunkedLoading: true, showCoverageOnHover: false,
                                      spiderfyOnMaxZoom: false, disableClusteringAtZoom: 15,
                                      removeOutsideVisibleBounds: true,
                                      chunkProgress: chunkProgress }).addTo(map);
    L.control.scale({ imperial: false }).addTo(map);
    setTiles('');
    map.on('zoomend', updateCircleVisibility);
    map.on('dblclick', function (e) { call('onMapClicked', e.latlng.lat, e.latlng.lng); });
    new QWebChannel(qt.webChannelTransport, function (channel) {
      bridge = channel.objects.bridge;
      call('onReady');
    });
  });
})();
